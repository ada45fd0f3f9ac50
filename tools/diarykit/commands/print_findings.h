#pragma once

#include <vector>

#include "tools/diarykit/findings.h"

// Prints each as "file:line: text", or all as JSON, and gives the exit code that follows.
int PrintFindings(const std::vector<Finding>& findings, bool asJson);
