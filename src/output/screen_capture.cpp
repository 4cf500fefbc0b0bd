#include "output/screen_capture.h"

#include "base/text.h"
#include "drawing/screen_camera.h"
#include "platform/file_store.h"
#include "screens/geometry.h"

#include <cmath>

namespace kestrum {

namespace {

constexpr std::string_view engine_screen = "Main";

/// Unlike `Session::Show` it leaves a screen that shows alone, and the focus where it is.
void Show_Again(Session& session, Screen& screen) {
    if (!screen.visible) {
        screen.visible = true;
        session.windows.Show_Behind(screen);
    }
}

Screen_Shot Shot_Of(const Session& session, const Screen& screen) {
    constexpr int best = 100;
    const Twips place = Place_In_Twips(screen);
    return {.screen = screen,
            .width = static_cast<int>(std::lround(place.width / twips_per_pixel)),
            .height = static_cast<int>(std::lround(place.height / twips_per_pixel)),
            .quality = best,
            .with_cursor = true,
            .path = Capture_Path(session)};
}

void Take_And_Keep(Session& session, const Screen_Shot& shot) {
    // What the imaging library of old told of a file that it could not write.
    constexpr int cannot_write = 7;
    try {
        if (session.camera == nullptr) {
            Fail(error::invalid_picture);
        }
        Write_Whole_File(shot.path, session.camera->Picture_Of(shot));
    } catch (const Run_Time_Error&) {
        if (session.camera != nullptr && session.camera->Outlives_Failures()) {
            Show_Again(session, session.Main()); // the way out of the program
        }
        throw Run_Time_Error(error::invalid_call, "Cannot save the image. GDI+ Error:" +
                                                      session.numbers.Plain(cannot_write));
    }
    session.camera->Was_Kept(shot);
}

/// Tells whose picture is taken, also when the taking fails.
class Source_Name {
public:
    explicit Source_Name(Session& session) : session_(session) {
        Capture_Of(session_).source = engine_screen;
    }

    Source_Name(const Source_Name&) = delete;
    Source_Name& operator=(const Source_Name&) = delete;

    ~Source_Name() { Capture_Of(session_).source.clear(); }

private:
    Session& session_;
};

} // namespace

std::string Capture_Path(const Session& session) {
    const Moment now = session.surroundings.clock.Now();
    std::string name = "Flow_" + Decoded(now.day_name) + "_" + Decoded(now.month_name);
    for (const int number : {now.day, now.year, now.hour, now.minute, now.second}) {
        name += "_" + session.numbers.Plain(number);
    }
    return Join_Path(session.surroundings.folder, name + ".jpg");
}

void Save_Form_Jpg(Session& session, Screen& screen) {
    const Screen_Shot shot = Shot_Of(session, screen);
    session.file.path = shot.path;
    if (Capture_Of(session).source != engine_screen) {
        session.Hide(session.Main());
    }
    Take_And_Keep(session, shot);
    Show_Again(session, session.Main());
}

void Capture_Engine_Screen(Session& session) {
    const Source_Name source(session);
    Save_Form_Jpg(session, session.Main());
}

} // namespace kestrum
