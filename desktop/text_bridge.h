#pragma once

#include <QString>

#include <array>
#include <charconv>
#include <string>
#include <string_view>

/// Between the texts of the system (UTF-8, lines end in CR LF) and Qt's.
namespace kestrum::desktop {

[[nodiscard]] inline QString To_Qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::string From_Qt(const QString& text) {
    return text.toStdString();
}

/// For what shows several lines: a line ends in LF alone.
[[nodiscard]] inline QString Lines_To_Qt(std::string_view text) {
    return To_Qt(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

[[nodiscard]] inline std::string Lines_From_Qt(QString text) {
    return From_Qt(text.replace(QLatin1Char('\n'), QLatin1String("\r\n")));
}

/// A whole number, whatever the locale.
[[nodiscard]] inline QString Digits_Of(int number) {
    constexpr std::size_t longest = 12;
    std::array<char, longest> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + longest, number).ptr;
    return QString::fromLatin1(digits.data(), end - digits.data());
}

} // namespace kestrum::desktop
