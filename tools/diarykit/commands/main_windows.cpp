// A command line in narrow characters has lost what the system's code page lacks, and a console
// would show UTF-8 in that page.
#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include <cstdio>

#include "tools/diarykit/commands/kit.h"
#include "tools/diarykit/text.h"

int wmain(int count, wchar_t** arguments) {
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
    std::vector<std::string> narrow;
    for (int i = 1; i < count; ++i) narrow.push_back(ToUtf8(arguments[i]));
    return RunKit(narrow);
}
