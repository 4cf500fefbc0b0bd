#include "desktop/file_filters.h"

#include "desktop/text_bridge.h"

namespace kestrum::desktop {

namespace {

/// Patterns with blanks between them. "*.*" means every file, also one without a dot.
QString Patterns_Of(QString pattern) {
    pattern.replace(QLatin1Char(';'), QLatin1Char(' '));
    QStringList patterns;
    for (const QString& one : pattern.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        // Qt would end the pattern at a bracket.
        const bool unusable = one.contains(QLatin1Char('(')) || one.contains(QLatin1Char(')'));
        patterns += one == QLatin1String("*.*") || unusable ? QStringLiteral("*") : one;
    }
    patterns.removeDuplicates();
    return patterns.isEmpty() ? QStringLiteral("*") : patterns.join(QLatin1Char(' '));
}

} // namespace

QStringList Name_Filters(std::string_view filter) {
    if (filter.empty()) {
        return {};
    }
    const QStringList parts = To_Qt(filter).split(QLatin1Char('|'));
    QStringList entries;
    for (qsizetype index = 0; index < parts.size(); index += 2) {
        if (index + 1 == parts.size() && parts[index].trimmed().isEmpty()) {
            break; // a "|" too many at the end
        }
        entries += parts[index] + QLatin1String(" (") + Patterns_Of(parts.value(index + 1)) +
                   QLatin1Char(')');
    }
    return entries;
}

QString Ending_Of(const QString& entry) {
    const QString pattern = entry.mid(entry.lastIndexOf(QLatin1Char('(')) + 1).chopped(1);
    const bool is_one =
        pattern.startsWith(QLatin1String("*.")) && pattern.count(QLatin1Char('*')) == 1;
    return is_one ? pattern.mid(1) : QString();
}

} // namespace kestrum::desktop
