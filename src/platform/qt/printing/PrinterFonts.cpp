#include "platform/qt/printing/PrinterFonts.h"

#include "platform/qt/widgets/Conversions.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QStringList>

namespace ballhaven::platform {

namespace {

/// A font, and those whose letters have the same widths, the most alike first.
struct Substitutes {
    const char* name;
    std::initializer_list<const char*> substitutes;
};

const Substitutes substitutesOfFonts[] = {
    {"Arial", {"Liberation Sans", "Arimo", "Nimbus Sans", "TeX Gyre Heros", "Helvetica"}},
    {"Times New Roman", {"Liberation Serif", "Tinos", "Nimbus Roman", "TeX Gyre Termes", "Times"}},
};

// The database names what is installed. A font that is asked for by a name always comes, in the worst case another one.
QString InstalledFamily(const QString& name) {
    if (QFontDatabase::hasFamily(name)) {
        return name;
    }
    for (const Substitutes& each : substitutesOfFonts) {
        if (name.compare(QLatin1String(each.name), Qt::CaseInsensitive) != 0) {
            continue;
        }
        for (const char* substitute : each.substitutes) {
            if (QFontDatabase::hasFamily(QLatin1String(substitute))) {
                return QLatin1String(substitute);
            }
        }
    }
    return {};
}

}  // namespace

std::optional<QFont> QtFontOf(const PrinterFont& wanted) {
    QFont font = QGuiApplication::font();
    if (!wanted.name.empty()) {
        const QString family = InstalledFamily(ToQString(wanted.name));
        if (family.isEmpty()) {
            return std::nullopt;
        }
        font.setFamilies({family});
    }
    font.setPointSizeF(wanted.size);
    font.setBold(wanted.bold);
    font.setItalic(wanted.italic);
    font.setUnderline(wanted.underline);
    // On paper a text is as wide as its letters.
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace ballhaven::platform
