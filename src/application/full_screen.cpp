#include "application/full_screen.h"

#include "graph/graph_canvas.h"
#include "presentation/screen_adaptation.h"

namespace kestrum {

void Use_Full_Screen(Session& session) {
    if (Scale_All_Screens(session)) {
        Stretch_Graph_Canvas(session);
    }
    session.Main().FullScrRes.Set_Enabled(false);
    session.Main().AspectRatio.Set_Enabled(false);
}

} // namespace kestrum
