#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/diarykit/picture.h"
#include "tools/diarykit/skin_files.h"

// A file of a skin as the program sees it.
struct SkinMember {
    std::string name;
    enum class State { kMissing, kUnreadable, kNoBitmap, kRead };
    State state = State::kMissing;
    std::vector<Picture> pieces;  // as they are drawn
    std::size_t needed = 0;       // fewer, and the skin is not taken
    const std::vector<std::string>* pieceNames = nullptr;

    bool IsComplete() const { return state == State::kRead && pieces.size() >= needed; }
};

// The members for screens of a density, in the order in which the program looks at them.
std::vector<SkinMember> ReadSkin(const SkinFiles& files, int dotsPerInch);
