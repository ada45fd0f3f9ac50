#pragma once

#include <windows.h>

#include "appearance/categories/category_list.h"
#include "appearance/categories/color_button.h"
#include "base/owned_handle.h"
#include "controls/full_screen_dialog.h"

// The icons and colours of the device's categories. Every change holds at once, and the list
// follows what other programs change meanwhile. The result is non-zero when the user confirmed, or
// changed anything.
class CategoryDialog : public FullScreenDialog, private CategoryListener {
  public:
    CategoryDialog();

  protected:
    bool OnInitDialog() override;
    bool OnInit() override;
    std::span<const Fill> Fills() const override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    void OnCategoryChange(CategoryChange change, int index) override;

    void CreateListColumn();
    // Lists the categories with a name and selects one of them, by its index; -1 for none.
    void ListCategories(int selected);
    // The index of the selected category; -1 for none.
    int SelectedCategory() const;
    int CategoryAt(int row) const;
    int RowCount() const;
    void UpdateControls();
    void Refresh();

    void ChooseIcon();
    void RemoveIcon();
    void OnColorChosen();
    void OnSliderMoved();
    void OnListKey(WORD key);
    void DrawCategory(const DRAWITEMSTRUCT& item) const;

    static LRESULT CALLBACK SliderProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    CategoryList& categories_ = CategoryList::Instance();
    ColorButton color_;
    OwnedImageList rowHeight_;
    bool changed_ = false;
};
