#include "desktop/desktop_run.h"

int main(int count, char* values[]) { // NOLINT(*-avoid-c-arrays)
    return kestrum::desktop::Run_Desktop(count, values);
}
