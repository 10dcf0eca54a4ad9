#pragma once

#include "platform/controls/GridView.h"

#include <optional>

namespace ballhaven::support {

/// A grid's widget that does nothing, for tests that watch one of its calls.
class IdleGridView : public platform::GridView {
  public:
    void Refresh() override {}
    void TakeFocus() override {}
    void BringToFront() override {}
    [[nodiscard]] platform::Bounds ScreenPlace() const override { return {}; }
    void ReadAgain() override {}
    void Repaint() override {}
    void ShowCurrentCell() override {}
    bool EndEdit() override { return true; }
    void SelectCellText() override {}
    [[nodiscard]] bool HasSelectedText() const override { return false; }
    [[nodiscard]] int FirstVisibleRow() const override { return 0; }
    [[nodiscard]] int VisibleRows() const override { return 0; }
    [[nodiscard]] std::optional<int> RowTop(int) const override { return std::nullopt; }
    [[nodiscard]] int PaneLeft(int) const override { return 0; }
};

}  // namespace ballhaven::support
