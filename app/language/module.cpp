#include "app/language/module.h"

#include "base/owned_handle.h"

namespace {

HINSTANCE moduleInstance = nullptr;
OwnedLibrary resourceLibrary;

}  // namespace

void InitModule(HINSTANCE instance) { moduleInstance = instance; }

bool LoadResourceLibrary(const std::wstring& path) {
    resourceLibrary.Reset(LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE));
    return static_cast<bool>(resourceLibrary);
}

void ShutDownModule() { resourceLibrary.Reset(); }

HINSTANCE ModuleInstance() { return moduleInstance; }

HMODULE ResourceLibrary() { return resourceLibrary.get(); }
