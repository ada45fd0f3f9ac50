#pragma once

#include "app/sheets/page_description.h"

extern const PageDescription kNotesCommonPage;
extern const PageDescription kNotesFilterPage;
