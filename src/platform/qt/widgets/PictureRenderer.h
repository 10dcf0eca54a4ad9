#pragma once

#include <QPixmap>
#include <QRectF>

#include <string>

class QPainter;

namespace ballhaven::platform {

/// Draws a picture of the program's resources, which has been drawn in several scales when the program was built: pixel
/// by pixel where its place has the size of one of them, else scaled down from the next larger one.
class PictureRenderer {
  public:
    /// Takes the picture of another name; the empty name, or one that there is no picture of, draws nothing.
    void SetName(const std::string& name);
    [[nodiscard]] bool HasPicture() const { return !Original().isNull(); }

    /// The size of the picture at scale 1, in pixels.
    [[nodiscard]] QSize Size() const { return Original().size(); }

    /// Draws the picture so that it fills a place, whose corners are moved to whole pixels of the screen.
    void Paint(QPainter& painter, const QRectF& place) const;

  private:
    [[nodiscard]] const QPixmap& Original() const;
    [[nodiscard]] const QPixmap& Fitting(const QSize& size) const;

    std::string current;
    mutable bool isRead = true;  ///< a picture that never comes on show is never read
    mutable QPixmap original;    ///< at scale 1
    mutable QPixmap fitted;      ///< at the size that was painted last, where that is another one
};

}  // namespace ballhaven::platform
