#include "controls/template_layout.h"

#include <commctrl.h>

#include <utility>

#include "app/language/module.h"
#include "base/scale.h"
#include "resources/ids.h"

namespace {

constexpr int kRightMargin = 5;   // dialog units
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

bool IsOfClass(HWND hwnd, const wchar_t* name) {
    wchar_t className[32] = {};
    GetClassNameW(hwnd, className, 32);
    return _wcsicmp(className, name) == 0;
}

RECT RectInDialog(HWND dialog, HWND control) {
    RECT rect = {};
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
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

int TemplateLayout::Place(const LayoutSize& size, std::span<const Fill> fills, int scrolled) const {
    const std::optional<DialogTemplate> design = SuitableTemplate(size.width);
    if (!design || design->controls.size() != controls_.size()) return 0;
    std::vector<Fill> fillsInPixels(fills.begin(), fills.end());
    for (Fill& fill : fillsInPixels) {
        fill.least = static_cast<int>(ToPixels(0, fill.least, 0, 0).top);
    }
    const RECT designed = ToPixels(design->width, 0, kRightMargin, 0);
    const auto fit = [&](std::vector<ControlPlace>& places, int width) {
        return FitToDialog(places, fillsInPixels, static_cast<int>(designed.left),
                           static_cast<int>(designed.right), ScaleY(kBottomMargin),
                           {width, size.height});
    };
    const std::vector<ControlPlace> places = PlacesOf(*design);
    std::vector<ControlPlace> fitted = places;
    int needed = fit(fitted, size.width);
    if (needed > size.height) {
        fitted = places;
        needed = fit(fitted, size.width - GetSystemMetrics(SM_CXVSCROLL));
    }
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        if (IsWindow(controls_[i].hwnd)) Move(controls_[i], fitted[i], scrolled);
    }
    return needed;
}

std::optional<DialogTemplate> TemplateLayout::SuitableTemplate(int width) const {
    std::optional<DialogTemplate> design = LoadTemplate(templateId_ + IDD_WIDE);
    if (design && ToPixels(design->width, 0, 0, 0).left <= width) return design;
    return LoadTemplate(templateId_);
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
        places.push_back(place);
    }
    return places;
}

void TemplateLayout::Move(const Control& control, const ControlPlace& place, int scrolled) const {
    const RECT wanted = {place.left, place.top - scrolled, place.right, place.bottom - scrolled};
    const RECT now = RectInDialog(dialog_, control.hwnd);
    if (EqualRect(&now, &wanted)) return;
    // What a drop-down list has lost of its height is what drops down.
    const LONG dropped = IsOfClass(control.hwnd, WC_COMBOBOXW) ? control.difference.bottom : 0;
    SetWindowPos(control.hwnd, nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                 wanted.bottom - dropped - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
    if (!IsOfClass(control.hwnd, WC_LISTVIEWW)) return;
    // Lists have one column.
    RECT client;
    GetClientRect(control.hwnd, &client);
    SendMessageW(control.hwnd, LVM_SETCOLUMNWIDTH, 0, client.right);
}
