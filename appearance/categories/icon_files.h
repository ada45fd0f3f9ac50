#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "appearance/categories/icon_picture.h"
#include "appearance/categories/icon_sources.h"
#include "base/owned_handle.h"

// The names of a folder's bitmap files; hidden ones, which begin with a dot, and folders do not
// count. The folder may end in a backslash or not.
std::vector<std::wstring> FindBitmapFiles(const std::wstring& folder);

// The key, under HKEY_LOCAL_MACHINE, of another program with category icons.
inline constexpr wchar_t kAgendaFusionKey[] = L"\\SOFTWARE\\Developer One, Inc.\\Agenda Fusion";

// A text of another program's; empty when it is not there. Nothing is created.
std::wstring ReadText(HKEY root, const wchar_t* path, const wchar_t* name);

std::wstring JoinPath(const std::wstring& folder, const std::wstring& name);

// Loads an icon's bitmap; null when there is none or the file is malformed.
OwnedBitmap LoadIconBitmap(const std::wstring& path);

// A bitmap file as an icon to choose; no value when it is malformed, wider than `widest` pixels or
// higher than an icon may be on this screen.
std::optional<IconPicture> ReadOfferedIcon(std::span<const std::uint8_t> file, int widest);

// Whether a folder holds an icon to choose and so is offered as a source of icons.
bool HasIcons(const std::wstring& folder);

// The sources that the device offers by itself: the diary's own icon set, and those of other
// programs. Only folders with icons.
std::vector<std::wstring> FindFixedIconSources();

// The folders that the user browsed to, in the registry.
// No value when they are there but cannot be read.
std::optional<RememberedFolders> ReadRememberedFolders();
void WriteRememberedFolders(const RememberedFolders& remembered);
