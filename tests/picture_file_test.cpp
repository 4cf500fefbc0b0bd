#include "drawing/picture_file.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kestrum {

namespace {

using namespace std::string_literals;

/// Header of a BMP of 64 x 48 dots of 24 bits: 54 bytes, 9,216 bytes of dots behind them.
const std::string bitmap = "BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x40\0\0\0\x30\0\0\0"
                           "\x01\0\x18\0\0\0\0\0\0\0\0\0"s;

std::string Jpeg(int pieces_before, std::string_view frame) {
    std::string bytes = "\xFF\xD8";
    for (int piece = 0; piece < pieces_before; ++piece) {
        bytes += "\xFF\xE2\xFF\xFF" + std::string(0xFFFD, 'i'); // a part of a colour profile
    }
    return bytes.append(frame);
}

TEST(Picture_File, Is_Told_By_Its_Header) {
    struct Case {
        const char* name;
        std::string bytes;
        bool is_picture;
    };

    const Case cases[] = {
        {"BMP", bitmap + std::string(9216 + 54 - bitmap.size(), '\0'), true},
        {"BMP cut off", bitmap + std::string(9216 + 53 - bitmap.size(), '\0'), false},
        {"header alone", bitmap, false},
        {"GIF", "GIF89a\x40\0\x30\0"s, true},
        {"GIF without width", "GIF89a\0\0\x30\0"s, false},
        {"GIF of a longer side than 32,768", "GIF89a\x01\x80\x01\0"s, false},
        {"PNG", "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\x20\0\0\0\x20\0"s, true},
        {"PNG of more than 2^26 dots", "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\x20\x01\0\0\x20\0"s,
         false},
        {"JPEG", Jpeg(0, "\xFF\xC0\0\x11\x08\0\x30\0\x40"s), true},
        {"JPEG with a long profile", Jpeg(40, "\xFF\xC2\0\x11\x08\0\x30\0\x40"s), true},
        {"JPEG cut off in it", Jpeg(40, "\xFF\xC2\0\x11\x08\0\x30\0"s), false},
        {"JPEG tables alone", Jpeg(0, "\xFF\xC4\0\x11\x08\0\x30\0\x40"s), false},
        {"words", "not a picture", false},
        {"nothing", "", false},
    };
    const Temp_Folder folder;
    for (const Case& c : cases) {
        EXPECT_EQ(Size_Of_Picture_File(folder.Write("logo", c.bytes)).has_value(), c.is_picture)
            << c.name;
    }
    EXPECT_FALSE(Size_Of_Picture_File(folder.File("none")));
}

TEST(Picture_File, Of_Any_Length_Is_Not_Read_Whole) {
    const Temp_Folder folder;
    const std::string path = folder.Write("logo.bmp", bitmap);
    // Longer than any memory; it takes no room on the disk.
    std::filesystem::resize_file(path, std::uintmax_t{1} << 40U);
    EXPECT_TRUE(Size_Of_Picture_File(path));
}

} // namespace

} // namespace kestrum
