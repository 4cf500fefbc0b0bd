#include "painting/png_writer.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace kestrum::painting {

namespace {

constexpr std::size_t most_colours = 256;

void Append_Number(std::string& bytes, std::uint32_t number) {
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes += static_cast<char>(number >> static_cast<unsigned>(shift) & 0xFFU);
    }
}

constexpr std::array<std::uint32_t, 256> Make_Sum_Table() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t index = 0; index < table.size(); ++index) {
        std::uint32_t sum = index;
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum & 1U) != 0 ? 0xEDB88320U ^ sum >> 1U : sum >> 1U;
        }
        table[index] = sum;
    }
    return table;
}

/// The check sum of a chunk.
std::uint32_t Sum_Of(std::string_view bytes) {
    static constexpr std::array<std::uint32_t, 256> table = Make_Sum_Table();
    std::uint32_t sum = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        sum = table[(sum ^ static_cast<unsigned char>(byte)) & 0xFFU] ^ sum >> 8U;
    }
    return ~sum;
}

void Append_Chunk(std::string& bytes, std::string_view kind, std::string_view content) {
    Append_Number(bytes, static_cast<std::uint32_t>(content.size()));
    const std::size_t begin = bytes.size();
    bytes += kind;
    bytes += content;
    Append_Number(bytes, Sum_Of(std::string_view(bytes).substr(begin)));
}

std::uint32_t Number_Of(QRgb colour) {
    return colour & 0xFFFFFFU;
}

std::span<const QRgb> Row_Of(const QImage& image, int y) {
    return {reinterpret_cast<const QRgb*>(image.constScanLine(y)),
            static_cast<std::size_t>(image.width())};
}

/// Takes the dots of one colour off the front of a row. Gives how many they are.
std::size_t Take_Run(std::span<const QRgb>& row) {
    std::size_t length = 1;
    while (length < row.size() && row[length] == row[0]) {
        ++length;
    }
    row = row.subspan(length);
    return length;
}

struct Counted_Colour {
    std::uint32_t colour;
    std::size_t dots;
};

/// The colours of an image, the most frequent first; none when it is no drawing but a photograph.
std::vector<Counted_Colour> Colours_Of(const QImage& image) {
    constexpr std::size_t most_of_a_drawing = 4096;
    std::unordered_map<std::uint32_t, std::size_t> counts;
    for (int y = 0; y < image.height(); ++y) {
        std::span<const QRgb> row = Row_Of(image, y);
        while (!row.empty()) {
            std::size_t& count = counts[Number_Of(row.front())];
            count += Take_Run(row);
        }
        if (counts.size() > most_of_a_drawing) {
            return {};
        }
    }
    std::vector<Counted_Colour> colours;
    colours.reserve(counts.size());
    for (const auto& [colour, dots] : counts) {
        colours.push_back({colour, dots});
    }
    std::ranges::sort(colours, [](const Counted_Colour& one, const Counted_Colour& other) {
        return std::pair(other.dots, one.colour) < std::pair(one.dots, other.colour);
    });
    return colours;
}

int Distance(QRgb one, QRgb other) {
    const int red = qRed(one) - qRed(other);
    const int green = qGreen(one) - qGreen(other);
    const int blue = qBlue(one) - qBlue(other);
    return red * red + green * green + blue * blue;
}

using Places = std::unordered_map<std::uint32_t, char>;

/// Where each colour stands in the palette. The palette takes the most frequent ones as they are;
/// of the rest, shades at the edges of lines that a few dots have, each takes the one next to it.
Places Places_Of(const std::vector<Counted_Colour>& colours) {
    const std::span<const Counted_Colour> palette =
        std::span(colours).first(std::min(colours.size(), most_colours));
    Places places;
    for (std::size_t index = 0; index < colours.size(); ++index) {
        std::size_t place = index;
        if (index >= palette.size()) {
            const auto nearest = std::ranges::min_element(
                palette, {}, [colour = colours[index].colour](const Counted_Colour& entry) {
                    return Distance(entry.colour, colour);
                });
            place = static_cast<std::size_t>(nearest - palette.begin());
        }
        places.emplace(colours[index].colour, static_cast<char>(place));
    }
    return places;
}

std::string Palette_Of(const std::vector<Counted_Colour>& colours) {
    std::string palette;
    for (std::size_t index = 0; index < std::min(colours.size(), most_colours); ++index) {
        palette += static_cast<char>(qRed(colours[index].colour));
        palette += static_cast<char>(qGreen(colours[index].colour));
        palette += static_cast<char>(qBlue(colours[index].colour));
    }
    return palette;
}

/// Room for all rows of an image, in front of each the number of its filter: none.
std::string Empty_Rows(const QImage& image, int bytes_of_dot) {
    return std::string(static_cast<std::size_t>(image.height()) *
                           (static_cast<std::size_t>(image.width() * bytes_of_dot) + 1),
                       '\0');
}

/// The image's dots as places in the palette.
std::string Indexed_Rows(const QImage& image, const Places& places) {
    std::string rows = Empty_Rows(image, 1);
    char* out = rows.data();
    for (int y = 0; y < image.height(); ++y) {
        std::span<const QRgb> row = Row_Of(image, y);
        ++out;
        while (!row.empty()) {
            const char place = places.at(Number_Of(row.front()));
            out = std::fill_n(out, Take_Run(row), place);
        }
    }
    return rows;
}

/// The image's dots as red, green and blue.
std::string Colour_Rows(const QImage& image) {
    std::string rows = Empty_Rows(image, 3);
    char* out = rows.data();
    for (int y = 0; y < image.height(); ++y) {
        ++out;
        for (const QRgb dot : Row_Of(image, y)) {
            *out++ = static_cast<char>(qRed(dot));
            *out++ = static_cast<char>(qGreen(dot));
            *out++ = static_cast<char>(qBlue(dot));
        }
    }
    return rows;
}

/// How many dots there are in a metre each way.
std::string Density_Of(const QImage& image) {
    constexpr char metre = 1;
    std::string density;
    Append_Number(density, static_cast<std::uint32_t>(image.dotsPerMeterX()));
    Append_Number(density, static_cast<std::uint32_t>(image.dotsPerMeterY()));
    return density + metre;
}

std::string Packed(const std::string& rows) {
    constexpr int quick = 3;
    constexpr qsizetype length_in_front = 4; // Qt's own, not of the packed bytes
    const QByteArray packed = qCompress(reinterpret_cast<const uchar*>(rows.data()),
                                        static_cast<qsizetype>(rows.size()), quick);
    return packed.sliced(length_in_front).toStdString();
}

} // namespace

std::string Png_Bytes(const QImage& image) {
    constexpr char colours = 2;
    constexpr char palette = 3;
    const QImage dots = image.convertToFormat(QImage::Format_RGB32);
    const std::vector<Counted_Colour> found = Colours_Of(dots);
    const bool is_drawing = !found.empty();
    std::string head;
    Append_Number(head, static_cast<std::uint32_t>(dots.width()));
    Append_Number(head, static_cast<std::uint32_t>(dots.height()));
    head += {8, is_drawing ? palette : colours, 0, 0, 0};
    std::string bytes = "\x89PNG\r\n\x1A\n";
    Append_Chunk(bytes, "IHDR", head);
    Append_Chunk(bytes, "pHYs", Density_Of(image));
    if (is_drawing) {
        Append_Chunk(bytes, "PLTE", Palette_Of(found));
    }
    Append_Chunk(bytes, "IDAT",
                 Packed(is_drawing ? Indexed_Rows(dots, Places_Of(found)) : Colour_Rows(dots)));
    Append_Chunk(bytes, "IEND", {});
    return bytes;
}

} // namespace kestrum::painting
