#pragma once

#include "app/sheets/page_description.h"

extern const PageDescription kGeneralCommonPage;
extern const PageDescription kGeneralShortDatePage;
extern const PageDescription kGeneralLongDatePage;
extern const PageDescription kGeneralFontPage;
extern const PageDescription kGeneralGroupStylePage;
extern const PageDescription kGeneralTabsPage;
extern const PageDescription kGeneralSkinsPage;
extern const PageDescription kGeneralAutoReturnPage;
