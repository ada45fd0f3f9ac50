#pragma once

#include "app/sheets/page_description.h"

extern const PageDescription kContactsCommonPage;
extern const PageDescription kContactsViewStylePage;
extern const PageDescription kContactsIconsPage;
