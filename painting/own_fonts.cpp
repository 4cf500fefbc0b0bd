#include "painting/own_fonts.h"

#include "platform/file_path.h"
#include "platform/file_store.h"
#include "platform/program_files.h"

#include <QFontDatabase>

namespace kestrum::painting {

void Know_Own_Fonts() {
    const std::string folder = Text_Of(Program_File(Program_Part::Library, "fonts"));
    if (folder.empty()) {
        return;
    }
    for (const std::string& name : Names_In_Folder(folder)) {
        if (name.ends_with(".ttf")) {
            QFontDatabase::addApplicationFont(QString::fromStdString(Join_Path(folder, name)));
        }
    }
}

} // namespace kestrum::painting
