#pragma once

namespace ballhaven {

/// Prints the sections of the data report whose boxes of `frmPrint` are ticked, as one job, in the order of the boxes;
/// nothing where none is. Brings the hot tables of the ticked sections up to date. The user is told where the printer
/// is not ready; any other failure ends the report without a word, and without its job.
void dataReport();

}  // namespace ballhaven
