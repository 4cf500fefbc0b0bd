#include "desktop/user_settings.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace kestrum::desktop::user_settings {

namespace {

/// Begins anew for each question: another program of the same user may have written meanwhile.
QSettings Present_Settings() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("kestrum"),
                     QStringLiteral("desktop"));
}

QString List_Key(Screen_Kind kind) {
    return kind == Screen_Kind::Engine ? QStringLiteral("recent/main")
                                       : QStringLiteral("recent/tests");
}

int Area_Shared(const QRect& one, const QRect& other) {
    const QRect shared = one.intersected(other);
    return shared.isValid() ? shared.width() * shared.height() : 0;
}

} // namespace

QStringList Recent_Files(Screen_Kind kind) {
    return Present_Settings().value(List_Key(kind)).toStringList().mid(0, most_recent_files);
}

void Note_Recent_File(Screen_Kind kind, const QString& path) {
    QStringList files = Recent_Files(kind);
    const QString whole = QFileInfo(path).absoluteFilePath();
    files.removeAll(whole);
    files.prepend(whole);
    Present_Settings().setValue(List_Key(kind), files.mid(0, most_recent_files));
}

std::optional<Window_Place> Kept_Place(const QString& window) {
    const QSettings settings = Present_Settings();
    const QRect area = settings.value(QStringLiteral("windows/") + window).toRect();
    if (!area.isValid()) {
        return std::nullopt;
    }
    return Window_Place{
        .area = area, .maximized = settings.value(QStringLiteral("maximized/") + window).toBool()};
}

void Keep_Place(const QString& window, const Window_Place& place) {
    QSettings settings = Present_Settings();
    settings.setValue(QStringLiteral("windows/") + window, place.area);
    settings.setValue(QStringLiteral("maximized/") + window, place.maximized);
}

std::optional<int> Kept_Choice(const QString& name) {
    bool is_number = false;
    const int value = Present_Settings().value(name).toInt(&is_number);
    return is_number ? std::optional(value) : std::nullopt;
}

void Keep_Choice(const QString& name, int value) {
    Present_Settings().setValue(name, value);
}

QRect Brought_Back(const QRect& area, const QList<QRect>& displays) {
    if (displays.isEmpty()) {
        return area;
    }
    // The first display where the window is on none of them.
    const QRect& display = *std::ranges::max_element(
        displays, {}, [&area](const QRect& one) { return Area_Shared(one, area); });
    QRect back(area.topLeft(), area.size().boundedTo(display.size()));
    back.moveLeft(std::clamp(back.left(), display.left(), display.right() + 1 - back.width()));
    back.moveTop(std::clamp(back.top(), display.top(), display.bottom() + 1 - back.height()));
    return back;
}

} // namespace kestrum::desktop::user_settings
