#include "platform/system_sound.h"

#include "platform/windows/system_path.h"

#include <windows.h>
// Behind the header that it hangs on.
#include <mmsystem.h>

namespace kestrum {

bool Play_By_System(const std::string& path) {
    return ::PlaySoundW(Wide_Text(path).c_str(), nullptr,
                        SND_FILENAME | SND_ASYNC | SND_NODEFAULT) != 0;
}

} // namespace kestrum
