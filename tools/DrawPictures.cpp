// Draws the program's pictures when it is built, so that it finds them ready at the sizes of the usual screens:
//
//   ballhaven_draw_pictures FOLDER PICTURE.svg...
//
// FOLDER/SCALE/PICTURE.png comes into being for each picture and each scale, and FOLDER/pictures.qrc, the list of all
// of them for the toolkit's resource compiler. The fonts of the machine at hand must not show in the pictures, so text
// in them has to be paths.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <cmath>
#include <cstdio>

namespace {

struct Scale {
    const char* folder;
    double factor;
    int quality;  ///< of a PNG: the higher it is, the larger its file and the sooner it is read
};

// The start reads those of scale 1, which are small enough to be stored as they are.
constexpr Scale scales[] = {{"1", 1, 100}, {"1.5", 1.5, 0}, {"2", 2, 0}, {"3", 3, 0}};

QImage Draw(QSvgRenderer& picture, double factor) {
    const QSizeF size = QSizeF(picture.defaultSize()) * factor;
    QImage drawn(static_cast<int>(std::lround(size.width())), static_cast<int>(std::lround(size.height())),
                 QImage::Format_ARGB32);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    picture.render(&painter, drawn.rect());
    return drawn;
}

bool HasText(const QString& file) {
    QFile picture(file);
    return picture.open(QIODevice::ReadOnly) && picture.readAll().contains("<text");
}

/// Whether a picture could be read and drawn.
bool DrawInAllScales(const QString& file, const QDir& folder, QTextStream& list) {
    QSvgRenderer picture(file);
    if (!picture.isValid() || HasText(file)) {
        return false;
    }
    for (const Scale& scale : scales) {
        const QString name = QStringLiteral("%1/%2.png").arg(QLatin1String(scale.folder), QFileInfo(file).baseName());
        if (!folder.mkpath(QLatin1String(scale.folder)) ||
            !Draw(picture, scale.factor).save(folder.filePath(name), "PNG", scale.quality)) {
            return false;
        }
        list << "<file>" << name << "</file>\n";
    }
    return true;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < 3) {
        std::fprintf(stderr, "usage: ballhaven_draw_pictures FOLDER PICTURE.svg...\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(arguments[1]));
    QFile listFile(folder.filePath(QStringLiteral("pictures.qrc")));
    if (!folder.mkpath(QStringLiteral(".")) || !listFile.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "%s cannot be written\n", arguments[1]);
        return 1;
    }
    QTextStream list(&listFile);
    list << "<RCC><qresource prefix=\"/pictures\">\n";
    for (int index = 2; index < argumentCount; ++index) {
        if (!DrawInAllScales(QString::fromLocal8Bit(arguments[index]), folder, list)) {
            std::fprintf(stderr, "%s is no picture that can be drawn, or has text that is not paths\n",
                         arguments[index]);
            return 1;
        }
    }
    list << "</qresource></RCC>\n";
    return 0;
}
