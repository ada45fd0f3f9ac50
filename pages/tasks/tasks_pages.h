#pragma once

#include "app/sheets/page_description.h"

extern const PageDescription kTasksCommonPage;
extern const PageDescription kTasksViewStylePage;
extern const PageDescription kTasksIconsPage;
