#include "platform/picture_file.h"

#include "platform/file_store.h"
#include "platform/run_time_error.h"

#include <cstdint>
#include <string_view>

namespace kestrum {

namespace {

struct Size {
    std::uint64_t width = 0;
    std::uint64_t height = 0;
};

std::uint64_t Byte_At(std::string_view bytes, std::size_t at) {
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0U;
}

std::uint64_t Little_Endian(std::string_view bytes, std::size_t at, std::size_t length) {
    std::uint64_t value = 0;
    while (length-- > 0) {
        value = value << 8U | Byte_At(bytes, at + length);
    }
    return value;
}

std::uint64_t Big_Endian(std::string_view bytes, std::size_t at, std::size_t length) {
    std::uint64_t value = 0;
    for (std::size_t index = 0; index < length; ++index) {
        value = value << 8U | Byte_At(bytes, at + index);
    }
    return value;
}

/// The height of a picture stored from the top down is negative.
std::uint64_t Magnitude(std::uint64_t height) {
    constexpr std::uint64_t sign = 0x80000000;
    return (height & sign) != 0 ? (sign << 1U) - height : height;
}

Size Bitmap_Size(std::string_view bytes) {
    const Size size{.width = Little_Endian(bytes, 18, 4),
                    .height = Magnitude(Little_Endian(bytes, 22, 4))};
    const bool packed = Little_Endian(bytes, 30, 4) != 0;
    const std::uint64_t row = (size.width * Little_Endian(bytes, 28, 2) + 31) / 32 * 4;
    // The header of a cut-off file promises more than there is.
    const bool complete = packed || Little_Endian(bytes, 10, 4) + row * size.height <= bytes.size();
    return complete ? size : Size{};
}

Size Jpeg_Size(std::string_view bytes) {
    std::size_t at = 2;
    while (at + 9 < bytes.size() && Byte_At(bytes, at) == 0xFF) {
        const std::uint64_t marker = Byte_At(bytes, at + 1);
        const bool is_frame =
            marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (is_frame) {
            return {.width = Big_Endian(bytes, at + 7, 2), .height = Big_Endian(bytes, at + 5, 2)};
        }
        at += 2 + static_cast<std::size_t>(Big_Endian(bytes, at + 2, 2));
    }
    return {};
}

Size Picture_Size(std::string_view bytes) {
    if (bytes.starts_with("BM")) {
        return Bitmap_Size(bytes);
    }
    if (bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a")) {
        return {.width = Little_Endian(bytes, 6, 2), .height = Little_Endian(bytes, 8, 2)};
    }
    if (bytes.starts_with("\x89PNG\r\n")) {
        return {.width = Big_Endian(bytes, 16, 4), .height = Big_Endian(bytes, 20, 4)};
    }
    return bytes.starts_with("\xFF\xD8\xFF") ? Jpeg_Size(bytes) : Size{};
}

} // namespace

bool Is_Picture_File(const std::string& path) {
    // Nobody's logo is larger, and a bad header must not cost all the memory.
    constexpr std::uint64_t most_pixels = 1U << 26U;
    constexpr std::uint64_t longest_side = 1U << 15U;
    try {
        const Size size = Picture_Size(Read_Whole_File(path));
        return size.width > 0 && size.height > 0 && size.width <= longest_side &&
               size.height <= longest_side && size.width * size.height <= most_pixels;
    } catch (const Run_Time_Error&) {
        return false;
    }
}

} // namespace kestrum
