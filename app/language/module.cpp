#include "app/language/module.h"

#include <utility>

namespace {

HINSTANCE moduleInstance = nullptr;
HMODULE resourceLibrary = nullptr;

}  // namespace

void InitModule(HINSTANCE instance) { moduleInstance = instance; }

bool LoadResourceLibrary(const std::wstring& path) {
    resourceLibrary = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    return resourceLibrary != nullptr;
}

void ShutDownModule() {
    if (const HMODULE library = std::exchange(resourceLibrary, nullptr)) FreeLibrary(library);
}

HINSTANCE ModuleInstance() { return moduleInstance; }

HMODULE ResourceLibrary() { return resourceLibrary; }
