// A C++ program that does nothing with the system, linked as the program is: what it imports, the
// C++ run-time itself needs. It uses what any C++ program does: texts, containers, exceptions,
// thread-safe statics.
#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR commandLine, int count) {
    try {
        static const std::wstring text = commandLine;
        std::vector<std::wstring> texts(count, text + std::to_wstring(count));
        std::map<std::wstring, int> tree = {{texts.at(0), 1}};
        std::unordered_map<std::wstring, int> hash = {{texts.at(0), 1}};
        const std::function<int()> sum = [&] {
            return tree.begin()->second + hash.begin()->second;
        };
        return sum();
    } catch (...) {
        return 1;
    }
}
