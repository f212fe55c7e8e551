#include "app/CallersConsole.h"

#ifdef _WIN32
#include <io.h>
#include <windows.h>

#include <cstdio>

void UseCallersConsole()
{
    const bool printsNowhere = _fileno(stdout) < 0;
    if (printsNowhere && AttachConsole(ATTACH_PARENT_PROCESS) != 0) {
        static_cast<void>(std::freopen("CONOUT$", "w", stdout));
        static_cast<void>(std::freopen("CONOUT$", "w", stderr));
    }
}
#else
void UseCallersConsole() {}
#endif
