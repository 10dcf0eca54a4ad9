#pragma once

#include <QRectF>

#include <memory>
#include <string>

class QPainter;
class QSvgRenderer;

namespace ballhaven::platform {

/// Draws a picture of the program's resources, sharp at every scale.
class PictureRenderer {
  public:
    PictureRenderer();
    ~PictureRenderer();

    /// Takes the picture of another name; the empty name, or one that there is no picture of, draws nothing.
    void SetName(const std::string& name);
    [[nodiscard]] bool HasPicture() const;

    /// The size that the picture was drawn at, in pixels.
    [[nodiscard]] QSizeF Size() const;
    void Paint(QPainter& painter, const QRectF& place) const;

  private:
    std::string current;
    std::unique_ptr<QSvgRenderer> renderer;
};

}  // namespace ballhaven::platform
