#pragma once

#include <QProxyStyle>

namespace ballhaven::platform {

/// A style whose scroll bars are flat faces in the colours of the palette. The
/// gradients of most styles cover the whole length of a bar, and drawing them
/// takes longer than all the rows of a grid.
class PlainScrollBarStyle : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

}  // namespace ballhaven::platform
