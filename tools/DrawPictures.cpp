// Draws the program's pictures when it is built, so that it finds them ready at the sizes of the usual screens:
//
//   ballhaven_draw_pictures FOLDER PICTURE.svg...
//
// FOLDER/SCALE/PICTURE.argb comes into being for each picture and each scale, and FOLDER/pictures.qrc, the list of all
// of them for the toolkit's resource compiler. A file holds width and height, four bytes each, and the pixels as they
// go to the screen, all in the order of the machine's bytes: reading any other form takes longer than drawing it. The
// fonts of the machine at hand must not show in the pictures, so text in them has to be paths.

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
};

constexpr Scale scales[] = {{"1", 1}, {"1.5", 1.5}, {"2", 2}, {"3", 3}};

QImage Draw(QSvgRenderer& picture, double factor) {
    const QSizeF size = QSizeF(picture.defaultSize()) * factor;
    QImage drawn(static_cast<int>(std::lround(size.width())), static_cast<int>(std::lround(size.height())),
                 QImage::Format_ARGB32);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    picture.render(&painter, drawn.rect());
    return drawn.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Whether a drawn picture could be written to a file.
bool Write(const QImage& drawn, const QString& path) {
    const qint32 size[] = {drawn.width(), drawn.height()};
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(reinterpret_cast<const char*>(size), sizeof size) > 0 &&
           file.write(reinterpret_cast<const char*>(drawn.constBits()), drawn.sizeInBytes()) == drawn.sizeInBytes() &&
           file.flush();
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
        const QString name = QStringLiteral("%1/%2.argb").arg(QLatin1String(scale.folder), QFileInfo(file).baseName());
        if (!folder.mkpath(QLatin1String(scale.folder)) || !Write(Draw(picture, scale.factor), folder.filePath(name))) {
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
