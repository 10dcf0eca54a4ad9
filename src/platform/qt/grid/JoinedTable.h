#pragma once

namespace ballhaven::platform {

/// From now on assistive tools are told of a grid whose panes show runs of its columns as of one table, with the grid's
/// headings and names of rows; its panes say nothing of their own. Boards are told one by one, as the tables that they
/// are.
void InstallJoinedTables();

}  // namespace ballhaven::platform
