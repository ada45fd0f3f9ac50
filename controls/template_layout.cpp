#include "controls/template_layout.h"

#include <algorithm>
#include <utility>

#include "app/language/module.h"
#include "base/scale.h"
#include "controls/control_text.h"
#include "controls/list_column.h"
#include "resources/ids.h"

namespace {

// Dialog units: beside what reaches to the right, between a label and its field beside it and
// below.
constexpr int kRightMargin = 5, kLabelGap = 4, kLineGap = 1;
constexpr int kNarrow = 16;
constexpr int kBottomMargin = 8;  // below the last control

std::optional<DialogTemplate> LoadTemplate(unsigned id) {
    const HMODULE library = ResourceLibrary();
    const HRSRC resource = FindResourceW(library, MAKEINTRESOURCEW(id), RT_DIALOG);
    if (!resource) return {};
    const auto* const bytes =
        static_cast<const std::uint8_t*>(LockResource(LoadResource(library, resource)));
    if (!bytes) return {};
    return ParseDialogTemplate({bytes, SizeofResource(library, resource)});
}

bool IsCut(const ControlPlace& place) {
    const bool breaks = place.kind == ControlKind::kText || place.kind == ControlKind::kLabel;
    return place.shown && !breaks && place.textWidth > place.right - place.left;
}

}  // namespace

void TemplateLayout::Attach(HWND dialog, unsigned templateId) {
    dialog_ = dialog;
    templateId_ = templateId;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        controls_.push_back({child, {}});
    }
}

void TemplateLayout::NoteOwnSizes() {
    const std::optional<DialogTemplate> design = LoadTemplate(templateId_);
    if (!design || design->controls.size() != controls_.size()) return;
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        if (!IsWindow(controls_[i].hwnd)) continue;
        const DialogTemplate::Control& control = design->controls[i];
        // As the system rounds when it creates a control.
        const RECT unit = ToPixels(control.x, control.y, control.width, control.height);
        const RECT now = RectInDialog(dialog_, controls_[i].hwnd);
        controls_[i].difference = {now.left - unit.left, now.top - unit.top,
                                   now.right - unit.left - unit.right,
                                   now.bottom - unit.top - unit.bottom};
    }
}

int TemplateLayout::Place(int width, int height, std::span<const Fill> fills, int scrolled) const {
    int needed = 0;
    std::vector<ControlPlace> places;
    const std::optional<DialogTemplate> wide = LoadTemplate(templateId_ + IDD_WIDE);
    if (wide && wide->controls.size() == controls_.size() &&
        ToPixels(wide->width, 0, 0, 0).left <= width) {
        places = Fit(*wide, width, height, fills, needed);
        // A translation may be too long for two columns.
        if (std::any_of(places.begin(), places.end(), IsCut)) places.clear();
    }
    if (places.empty()) {
        const std::optional<DialogTemplate> usual = LoadTemplate(templateId_);
        if (!usual || usual->controls.size() != controls_.size()) return 0;
        places = Fit(*usual, width, height, fills, needed);
    }
    bool moved = false;
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        if (IsWindow(controls_[i].hwnd) && Move(controls_[i], places[i], scrolled)) moved = true;
    }
    if (moved) InvalidateRect(dialog_, nullptr, TRUE);
    return needed;
}

std::vector<ControlPlace> TemplateLayout::Fit(const DialogTemplate& design, int width, int height,
                                              std::span<const Fill> fills, int& needed) const {
    std::vector<Fill> fillsInPixels(fills.begin(), fills.end());
    for (Fill& fill : fillsInPixels) {
        const RECT heights = ToPixels(0, fill.least, 0, fill.whole);
        fill.least = static_cast<int>(heights.top);
        fill.whole = static_cast<int>(heights.bottom);
    }
    const RECT designed = ToPixels(design.width, kLineGap, kRightMargin, 0);
    const RECT gaps = ToPixels(kLabelGap, 0, kNarrow, 0);
    const LayoutMetrics metrics = {
        static_cast<int>(designed.left), static_cast<int>(designed.right),
        ScaleY(kBottomMargin),           static_cast<int>(gaps.left),
        static_cast<int>(gaps.right),    static_cast<int>(designed.top)};
    const auto heightAt = [this](std::size_t control, int at) {
        return TextHeight(controls_[control].hwnd, at);
    };
    const std::vector<ControlPlace> places = PlacesOf(design);
    std::vector<ControlPlace> fitted = places;
    needed = FitToDialog(fitted, fillsInPixels, metrics, width, height, heightAt);
    if (needed <= height) return fitted;
    for (Fill& fill : fillsInPixels) fill.least = std::max(fill.least, fill.whole);
    fitted = places;
    needed = FitToDialog(fitted, fillsInPixels, metrics, width - GetSystemMetrics(SM_CXVSCROLL),
                         height, heightAt);
    return fitted;
}

RECT TemplateLayout::ToPixels(int left, int top, int right, int bottom) const {
    RECT rect = {left, top, right, bottom};
    MapDialogRect(dialog_, &rect);
    return rect;
}

std::vector<ControlPlace> TemplateLayout::PlacesOf(const DialogTemplate& design) const {
    std::vector<ControlPlace> places;
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        const DialogTemplate::Control& control = design.controls[i];
        const auto& [hwnd, difference] = controls_[i];
        RECT rect =
            ToPixels(control.x, control.y, control.x + control.width, control.y + control.height);
        ControlPlace place;
        place.id = static_cast<int>(control.id);
        place.left = static_cast<int>(rect.left + difference.left);
        place.top = static_cast<int>(rect.top + difference.top);
        place.right = static_cast<int>(rect.right + difference.right);
        place.bottom = static_cast<int>(rect.bottom + difference.bottom);
        place.shown = IsWindow(hwnd) && GetWindowLongW(hwnd, GWL_STYLE) & WS_VISIBLE;
        if (place.shown) {
            place.kind = KindOf(hwnd);
            place.textWidth = TextWidth(hwnd, place.right - place.left);
        }
        places.push_back(place);
    }
    return places;
}

bool TemplateLayout::Move(const Control& control, const ControlPlace& place, int scrolled) const {
    BreakLines(control.hwnd, place.textWidth > place.right - place.left);
    const RECT wanted = {place.left, place.top - scrolled, place.right, place.bottom - scrolled};
    const RECT now = RectInDialog(dialog_, control.hwnd);
    if (EqualRect(&now, &wanted)) return false;
    // What a drop-down list has lost of its height is what drops down.
    const LONG dropped = IsOfClass(control.hwnd, WC_COMBOBOXW) ? control.difference.bottom : 0;
    SetWindowPos(control.hwnd, nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                 wanted.bottom - dropped - wanted.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    if (IsOfClass(control.hwnd, WC_LISTVIEWW)) FitColumn(control.hwnd);
    return true;
}
