#pragma once

#include <string>

#include "appearance/drawing/category_color.h"

// The colours of the categories in the registry, by the category's name. The name of the value is
// the unescaped name, which is how the plug-in looks it up.
CategoryColor ReadCategoryColor(const std::wstring& category);
// False when the registry refuses.
bool WriteCategoryColor(const std::wstring& category, const CategoryColor& color);
