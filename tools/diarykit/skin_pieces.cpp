#include "tools/diarykit/skin_pieces.h"

#include <utility>

#include "appearance/skins/item_icons.h"
#include "appearance/skins/skin_members.h"
#include "appearance/skins/strip.h"

namespace {

const std::vector<std::string> kItemNames = {"appointment",
                                             "all-day appointment",
                                             "reminder",
                                             "recurrence",
                                             "private",
                                             "attendees",
                                             "high importance",
                                             "low importance",
                                             "note",
                                             "category",
                                             "open task",
                                             "completed task",
                                             "overdue task",
                                             "contact",
                                             "company",
                                             "telephone",
                                             "mobile telephone",
                                             "e-mail address",
                                             "birthday",
                                             "anniversary",
                                             "transaction",
                                             "ink note",
                                             "voice note",
                                             "PhatNotes note",
                                             "PhatPad note",
                                             "unread message",
                                             "read message",
                                             "answered message",
                                             "SMS",
                                             "MMS",
                                             "folder",
                                             "inbox",
                                             "outbox",
                                             "sent items",
                                             "drafts",
                                             "deleted items",
                                             "today",
                                             "weather",
                                             "expanded group",
                                             "collapsed group"};
const std::vector<std::string> kScrollBarNames = {"button up", "button down", "thumb", "track"};
const std::vector<std::string> kTabNames = {"calendar", "tasks",    "contacts",
                                            "notes",    "messages", "special events"};

void PutPixel(Picture& picture, const std::uint8_t* pixel, std::uint8_t opacity) {
    picture.pixels.insert(picture.pixels.end(), {pixel[2], pixel[1], pixel[0], opacity});
}

std::vector<Picture> PiecesOf(const BitmapView& strip) {
    std::vector<Picture> pieces;
    const int width = strip.width / 2;
    for (const StripPiece& piece : FindStripPieces(strip)) {
        Picture picture = {width, piece.bottom - piece.top, {}};
        for (int y = piece.top; y < piece.bottom; ++y) {
            for (int x = 0; x < width; ++x) {
                PutPixel(picture, strip.Pixel(x, y), strip.Pixel(width + x, y)[1]);
            }
        }
        pieces.push_back(std::move(picture));
    }
    return pieces;
}

std::vector<Picture> SquaresOf(const BitmapView& bitmap, int size) {
    std::vector<Picture> squares;
    const SquareGrid grid(bitmap, size);
    for (int i = 0; i < grid.Count(); ++i) {
        Picture picture = {size, size, {}};
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const std::uint8_t* const pixel = bitmap.Pixel(grid.Left(i) + x, grid.Top(i) + y);
                PutPixel(picture, pixel, IsTransparentInTabIcons(pixel) ? 0 : 255);
            }
        }
        squares.push_back(std::move(picture));
    }
    return squares;
}

}  // namespace

std::vector<SkinMember> ReadSkin(const SkinFiles& files, int dotsPerInch) {
    const SkinMembers names = SkinMembersFor(dotsPerInch);
    std::vector<SkinMember> members = {
        {.name = names.icons, .needed = kItemIconCount, .pieceNames = &kItemNames},
        {.name = names.scrollBar, .needed = kScrollBarPartCount, .pieceNames = &kScrollBarNames},
        {.name = names.tabIcons, .needed = kTabIconCount, .pieceNames = &kTabNames},
    };
    for (SkinMember& member : members) {
        if (!files.IsThere(member.name)) continue;
        member.state = SkinMember::State::kUnreadable;
        const auto file = files.Read(member.name);
        if (!file) continue;
        const auto bitmap = ParseBitmapFile(*file);
        member.state = bitmap ? SkinMember::State::kRead : SkinMember::State::kNoBitmap;
        if (!bitmap) continue;
        const bool isTabs = &member == &members.back();
        member.pieces = isTabs ? SquaresOf(*bitmap, names.tabIconSize) : PiecesOf(*bitmap);
    }
    return members;
}
