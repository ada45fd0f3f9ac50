#pragma once

#include "pocketpc/include/cemapi.h"

#include <memory>

// Makes a set of rows, each with values of its own, that FreeProws frees; null without memory.
struct RowSetFree {
    void operator()(SRowSet* rows) const { FreeProws(rows); }
};
using OwnedRowSet = std::unique_ptr<SRowSet, RowSetFree>;
OwnedRowSet MakeRowSet(ULONG rows);
