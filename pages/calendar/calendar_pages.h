#pragma once

#include "app/sheets/page_description.h"

extern const PageDescription kCalendarCommonPage;
extern const PageDescription kCalendarShowPage;
extern const PageDescription kCalendarTasksPage;
extern const PageDescription kCalendarTitlesPage;
