#include "tools/diarykit/text_places.h"

#include <algorithm>

#include "app/language/dialog_init.h"
#include "base/dialog_template.h"
#include "resources/ids.h"
#include "tools/diarykit/known_values.h"
#include "tools/diarykit/resource_library.h"
#include "tools/diarykit/text.h"
#include "tools/diarykit/text_width.h"

namespace {

using Kind = TextPlace::Kind;

constexpr std::uint32_t kButtonTypes = 0xF;
constexpr std::uint32_t kFirstPushType = 0, kLastPushType = 1;  // BS_PUSHBUTTON, BS_DEFPUSHBUTTON

bool IsClass(const DialogTemplate::Control& control, std::wstring_view number,
             std::wstring_view name) {
    const std::wstring& its = control.className;
    return its == number || std::equal(its.begin(), its.end(), name.begin(), name.end(),
                                       [](wchar_t a, wchar_t b) { return (a | 0x20) == b; });
}

struct Dialog {
    std::uint32_t id;
    std::string where;
    DialogTemplate parts;
};

class Collector {
  public:
    TextPlaces Run(std::span<const LibraryResource> resources) {
        for (const LibraryResource& resource : resources) {
            if (resource.type == kDialogType) AddDialog(resource);
        }
        for (const LibraryResource& resource : resources) {
            switch (resource.type) {
                case kDialogInitType: AddLists(resource); break;
                case kMenuType:
                    for (const auto& text : MenuTextsOf(resource.bytes)) {
                        Add(text, {Kind::kMenu, {}, resource.id});
                    }
                    break;
                case kStringType:
                    for (const auto& [id, text] : StringsOf(resource)) {
                        Add(text, {Kind::kString, {}, id});
                    }
                    break;
            }
        }
        AddChoices();
        return std::move(places_);
    }

  private:
    void Add(const std::wstring& text, TextPlace place) {
        if (!text.empty()) places_[text].push_back(std::move(place));
    }

    // A dialog that no row knows is known by its caption.
    static std::string NameOf(std::uint32_t id, const DialogTemplate& parts) {
        const bool isWide = id > IDD_WIDE;
        std::string name = "dialog " + Quoted(parts.caption);
        for (const ShownValue& shown : ShownValues()) {
            if (shown.dialog == (isWide ? id - IDD_WIDE : id)) name = "page " + shown.page;
        }
        return isWide ? name + " on wide screens" : name;
    }

    void AddDialog(const LibraryResource& resource) {
        auto parts = ParseDialogTemplate(resource.bytes);
        if (!parts) return;
        const std::string where = NameOf(resource.id, *parts);
        // Wide templates leave labels and check boxes to the program, which breaks their texts.
        const bool breaks = resource.id > IDD_WIDE;
        Add(parts->caption, {Kind::kCaption, where, resource.id});
        for (const DialogTemplate::Control& control : parts->controls) {
            TextPlace place = {Kind::kLabel, where, control.id, breaks ? 0 : control.width,
                               control.height};
            if (IsClass(control, L"#0080", L"button")) {
                const std::uint32_t type = control.style & kButtonTypes;
                const bool isPush = type >= kFirstPushType && type <= kLastPushType;
                place.kind = isPush ? Kind::kButton : Kind::kCheckBox;
                if (isPush) place.width = control.width;
                Add(control.text, place);
            } else if (IsClass(control, L"#0082", L"static") && !control.text.starts_with(L'#')) {
                Add(control.text, place);
            }
        }
        dialogs_.push_back({resource.id, where, std::move(*parts)});
    }

    void AddEntry(const std::wstring& text, std::uint32_t dialog, std::uint32_t id) {
        for (const Dialog& candidate : dialogs_) {
            if (candidate.id != dialog && candidate.id != dialog + IDD_WIDE) continue;
            for (const DialogTemplate::Control& control : candidate.parts.controls) {
                if (control.id != id) continue;
                Add(text, {Kind::kListEntry, candidate.where, id, control.width});
            }
        }
    }
    void AddLists(const LibraryResource& resource) {
        for (const DialogInitRecord& record : ParseDialogInit(resource.bytes)) {
            AddEntry(record.text, resource.id, record.controlId);
        }
    }
    // Lists that pages fill with strings.
    void AddChoices() {
        for (const ShownValue& shown : ShownValues()) {
            for (const ShownValue::Entry& entry : shown.entries) {
                const std::wstring text = FromUtf8(entry.text);
                const auto known = places_.find(text);
                const bool isString =
                    known != places_.end() &&
                    std::any_of(known->second.begin(), known->second.end(),
                                [](const TextPlace& place) { return place.kind == Kind::kString; });
                if (isString) AddEntry(text, shown.dialog, shown.control);
            }
        }
    }

    std::vector<Dialog> dialogs_;
    TextPlaces places_;
};

// What a control takes of its width besides the text, in pixels: of a check box the box and a half
// digit, of a button its edges, of a list the arrow and edges.
int EdgesOf(Kind kind, const DialogFont& font) {
    const auto scaled = [&font](int pixels) { return pixels * font.dpi() / 96; };
    switch (kind) {
        case Kind::kCheckBox: return scaled(12) + 1 + font.WidthOf(L"0") / 2;
        case Kind::kButton: return scaled(4);
        case Kind::kListEntry: return scaled(13) + scaled(6);
        default: return 0;
    }
}

// An ampersand marks the letter behind it.
std::wstring Shown(const std::wstring& text) {
    std::wstring shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'&' && i + 1 < text.size()) ++i;
        shown += text[i];
    }
    return shown;
}

int ExcessWith(const DialogFont& font, const std::wstring& text, const TextPlace& place) {
    const int width = font.PixelsAcross(place.width) - EdgesOf(place.kind, font);
    const int height = font.PixelsDown(place.height);
    const int tooWide = std::max(0, font.WidthOf(text) - width);
    const bool hasLines = place.kind == Kind::kLabel && height >= 2 * font.HeightOf({}, 0);
    if (!hasLines) return tooWide;
    return tooWide > 0 ? std::max(0, font.HeightOf(text, width) - height) : 0;
}

}  // namespace

std::string Describe(const TextPlace& place) {
    switch (place.kind) {
        case Kind::kLabel: return "label on " + place.where;
        case Kind::kCheckBox: return "check box on " + place.where;
        case Kind::kButton: return "button on " + place.where;
        case Kind::kListEntry: return "list entry on " + place.where;
        case Kind::kCaption: return "caption of " + place.where;
        case Kind::kMenu: return "menu";
        case Kind::kString: break;
    }
    return "string " + std::to_string(place.id);
}

TextPlaces PlacesOfTexts(std::span<const std::uint8_t> library) {
    const auto resources = ReadResources(library);
    return resources ? Collector().Run(*resources) : TextPlaces();
}

Excess ExcessOf(const std::wstring& text, const TextPlace& place) {
    Excess worst;
    if (place.width == 0) return worst;
    for (const DialogFont& font : DialogFont::All()) {
        const int pixels = ExcessWith(font, Shown(text), place);
        if (pixels * worst.dpi > worst.pixels * font.dpi() || (!worst.dpi && pixels > 0)) {
            worst = {pixels, font.dpi()};
        }
    }
    return worst;
}
