#include "cli/plain_jpeg.h"

#include "base/run_time_error.h"

#include <array>
#include <cmath>
#include <initializer_list>

namespace kestrum::cli {

namespace {

constexpr int block = 8; // dots on a side
constexpr int component_count = 3;

/// What a JPEG file is made of: bytes, numbers of two bytes, and segments that tell their length.
class Jpeg_Bytes {
public:
    void Byte(int value) { bytes_.push_back(static_cast<char>(value)); }

    void Pair(int value) {
        constexpr int byte = 256;
        Byte(value / byte);
        Byte(value % byte);
    }

    void Marker(int code) {
        constexpr int escape = 0xFF;
        Byte(escape);
        Byte(code);
    }

    void Segment(int code, const Jpeg_Bytes& content) {
        Marker(code);
        Pair(static_cast<int>(content.bytes_.size()) + 2);
        bytes_ += content.bytes_;
    }

    void Repeat(int value, int count) {
        bytes_.append(static_cast<std::size_t>(count), static_cast<char>(value));
    }

    void All(std::initializer_list<int> values) {
        for (const int value : values) {
            Byte(value);
        }
    }

    [[nodiscard]] std::string Take() { return std::move(bytes_); }

private:
    std::string bytes_;
};

/// Bits from the highest down, filled up with ones; a byte of ones is followed by an empty one.
class Bit_Writer {
public:
    explicit Bit_Writer(Jpeg_Bytes& out) : out_(out) {}

    void Bits(int value, int count) {
        while (count-- > 0) {
            byte_ = byte_ * 2 + (value >> count & 1);
            if (++filled_ == block) {
                Put();
            }
        }
    }

    void Finish() {
        while (filled_ != 0) {
            Bits(1, 1);
        }
    }

private:
    void Put() {
        constexpr int escape = 0xFF;
        out_.Byte(byte_);
        if (byte_ == escape) {
            out_.Byte(0);
        }
        byte_ = 0;
        filled_ = 0;
    }

    Jpeg_Bytes& out_;
    int byte_ = 0;
    int filled_ = 0;
};

/// Brightness and the two colour differences, around 0.
std::array<double, component_count> Components_Of(int colour) {
    constexpr unsigned mask = 0xFF;
    constexpr double middle = 128;
    const auto bits = static_cast<unsigned>(colour);
    const double red = bits >> 16U & mask;
    const double green = bits >> 8U & mask;
    const double blue = bits & mask;
    return {0.299 * red + 0.587 * green + 0.114 * blue - middle,
            -0.168736 * red - 0.331264 * green + 0.5 * blue,
            0.5 * red - 0.418688 * green - 0.081312 * blue};
}

Jpeg_Bytes Frame(int width, int height) {
    constexpr int bits = 8;
    Jpeg_Bytes frame;
    frame.Byte(bits);
    frame.Pair(height);
    frame.Pair(width);
    frame.Byte(component_count);
    for (int component = 1; component <= component_count; ++component) {
        frame.All({component, 0x11, 0}); // no dots are left out; the one quantization table
    }
    return frame;
}

/// Lengths of the bits of a number: "0" for the length 0, five bits for each of the others.
constexpr int lengths = 12;
constexpr int first_long_code = 0b10000;

Jpeg_Bytes Length_Codes() {
    Jpeg_Bytes table;
    table.All({0x00, 1, 0, 0, 0, lengths - 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    for (int length = 0; length < lengths; ++length) {
        table.Byte(length);
    }
    return table;
}

/// Nothing but "end of block", as one bit.
Jpeg_Bytes End_Codes() {
    Jpeg_Bytes table;
    table.All({0x10, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    return table;
}

Jpeg_Bytes Scan_Head() {
    Jpeg_Bytes head;
    head.Byte(component_count);
    for (int component = 1; component <= component_count; ++component) {
        head.All({component, 0x00});
    }
    head.All({0, 63, 0});
    return head;
}

/// The first block tells its level.
void Write_Level(Bit_Writer& bits, double component) {
    const int level = static_cast<int>(std::lround(component * block));
    int length = 0;
    while (std::abs(level) >> length != 0) {
        ++length;
    }
    bits.Bits(length == 0 ? 0 : first_long_code + length - 1, length == 0 ? 1 : 5);
    bits.Bits(level < 0 ? level + (1 << length) - 1 : level, length);
    bits.Bits(0, 1);
}

void Write_Scan(Jpeg_Bytes& out, int blocks, int colour) {
    constexpr int bits_of_same_block = 2; // no change of level, end of block
    Bit_Writer bits(out);
    for (const double component : Components_Of(colour)) {
        Write_Level(bits, component);
    }
    for (int rest = (blocks - 1) * component_count; rest > 0; --rest) {
        bits.Bits(0, bits_of_same_block);
    }
    bits.Finish();
}

} // namespace

std::string Plain_Jpeg(int width, int height, int colour) {
    constexpr int longest_side = 65535;
    if (width < 1 || height < 1 || width > longest_side || height > longest_side) {
        Fail(error::invalid_picture);
    }
    Jpeg_Bytes file;
    file.Marker(0xD8);
    Jpeg_Bytes quantization;
    quantization.Byte(0);
    quantization.Repeat(1, block * block);
    file.Segment(0xDB, quantization);
    file.Segment(0xC0, Frame(width, height));
    file.Segment(0xC4, Length_Codes());
    file.Segment(0xC4, End_Codes());
    file.Segment(0xDA, Scan_Head());
    const int across = (width + block - 1) / block;
    const int down = (height + block - 1) / block;
    Write_Scan(file, across * down, colour);
    file.Marker(0xD9);
    return file.Take();
}

} // namespace kestrum::cli
