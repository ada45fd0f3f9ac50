#include "controls/dialog_layout.h"

#include <gtest/gtest.h>

namespace {

constexpr LayoutMetrics kMetrics = {200, 10, 8, 5, 20, 2};
constexpr int kLine = 12;

// Designed for 200 by 100. A label and its field, a list with a button beside it, a box.
enum { kLabel, kField, kListed, kUp, kBox };

std::vector<ControlPlace> Designed() {
    return {{kLabel, 10, 12, 50, 24, ControlKind::kLabel, 30},
            {kField, 54, 10, 190, 24, ControlKind::kField, 80},
            {kListed, 10, 30, 150, 70},
            {kUp, 156, 30, 190, 44, ControlKind::kField, 20},
            {kBox, 10, 76, 120, 92, ControlKind::kText, 90}};
}

class Laid {
  public:
    Laid(std::vector<ControlPlace> places, int width, int height,
         std::vector<Fill> fills = {{kListed, 20}})
        : places_(std::move(places)) {
        const auto heightAt = [this](std::size_t control, int at) {
            return kLine * ((places_[control].textWidth + at - 1) / at) + 4;
        };
        needed_ = FitToDialog(places_, fills, kMetrics, width, height, heightAt);
    }
    // "left top right bottom" of a control.
    std::string At(std::size_t control) const {
        const ControlPlace& p = places_[control];
        return std::to_string(p.left) + " " + std::to_string(p.top) + " " +
               std::to_string(p.right) + " " + std::to_string(p.bottom);
    }
    int needed() const { return needed_; }

  private:
    std::vector<ControlPlace> places_;
    int needed_ = 0;
};

TEST(DialogLayout, FillsOtherSizes) {
    const Laid same(Designed(), 200, 100);
    EXPECT_EQ(same.At(kListed), "10 30 150 70");
    EXPECT_EQ(same.needed(), 100);

    const Laid large(Designed(), 260, 150);
    EXPECT_EQ(large.At(kField), "54 10 250 24");
    EXPECT_EQ(large.At(kListed), "10 30 210 120") << "wider and higher";
    EXPECT_EQ(large.At(kUp), "216 30 250 44") << "goes along";
    EXPECT_EQ(large.At(kBox), "10 126 120 142") << "makes room";
    EXPECT_EQ(large.needed(), 150);

    const Laid low(Designed(), 200, 60);
    EXPECT_EQ(low.At(kListed), "10 30 150 50") << "not below its least";
    EXPECT_EQ(low.needed(), 80);

    // Without one that fills, the button grows; what is narrow moves; nothing else does.
    auto narrow = Designed();
    narrow[kUp].left = 172;
    const Laid wide(narrow, 220, 150, {});
    EXPECT_EQ(wide.At(kUp), "192 30 210 44");
    EXPECT_EQ(wide.At(kListed), "10 30 150 70");
    EXPECT_EQ(Laid(Designed(), 220, 150, {}).At(kUp), "156 30 210 44");
}

TEST(DialogLayout, FillingControlsAboveEachOtherShareAndHiddenOnesTakeNothing) {
    auto places = Designed();
    const std::vector<Fill> both = {{kListed, 20}, {kBox, 10}};
    const Laid shared(places, 200, 140, both);
    EXPECT_EQ(shared.At(kListed), "10 30 150 90");
    EXPECT_EQ(shared.At(kBox), "10 96 120 132");
    places[kBox].shown = false;
    EXPECT_EQ(Laid(places, 200, 140, both).At(kListed), "10 30 150 132");
    const std::vector<Fill> widthOnly = {{kListed, 0}};
    EXPECT_EQ(Laid(Designed(), 260, 150, widthOnly).At(kListed), "10 30 210 70");
}

TEST(DialogLayout, ColumnsMakeRoomForThemselvesAlone) {
    // A list, what touches it below, and two beside them.
    const Laid laid({{1, 10, 10, 90, 60},
                     {2, 10, 60, 90, 72, ControlKind::kText, 20},
                     {3, 110, 10, 190, 40},
                     {4, 110, 74, 190, 92}},
                    200, 120, {{1, 20}});
    EXPECT_EQ(laid.At(0) + "; " + laid.At(1), "10 10 90 100; 10 100 90 112");
    EXPECT_EQ(laid.At(2) + "; " + laid.At(3), "110 10 190 40; 110 74 190 92");
    const Laid wide(
        {{1, 10, 10, 60, 24, ControlKind::kText, 80}, {2, 110, 10, 190, 24}, {3, 10, 40, 90, 54}},
        200, 100, {});
    EXPECT_EQ(wide.At(0) + "; " + wide.At(1), "10 10 90 24; 110 10 190 24");
}

TEST(DialogLayout, LabelsStayInLineAndFieldsKeepWhatTouchesThem) {
    const ControlPlace wide = {2, 10, 32, 50, 44, ControlKind::kLabel, 60};
    const ControlPlace below = {3, 54, 30, 190, 44, ControlKind::kField, 80};
    const std::vector<ControlPlace> all = Designed();
    const Laid line({all[kLabel], all[kField], wide, below}, 200, 100, {});
    EXPECT_EQ(line.At(0) + "; " + line.At(1), "10 12 70 24; 74 10 190 24");
    EXPECT_EQ(line.At(3), "74 30 190 44");
    const Laid arrows({{0, 10, 12, 50, 24, ControlKind::kLabel, 110},
                       {1, 54, 10, 150, 24, ControlKind::kField, 80},
                       {2, 150, 10, 166, 24}},
                      200, 100, {});
    EXPECT_EQ(arrows.At(1) + "; " + arrows.At(2), "10 26 106 40; 106 26 122 40");
}

TEST(DialogLayout, LongTextsPushWhatStandsInTheirRowAndBelow) {
    const ControlPlace foot = {9, 10, 60, 190, 72};
    const Laid lines({{1, 10, 10, 190, 26, ControlKind::kText, 200}, {2, 10, 30, 190, 44}}, 200,
                     100, {});
    EXPECT_EQ(lines.At(0) + "; " + lines.At(1), "10 10 190 38; 10 42 190 56");
    const Laid pushed({{1, 10, 10, 60, 24, ControlKind::kText, 80},
                       {2, 64, 10, 90, 24, ControlKind::kField, 20},
                       foot},
                      200, 100, {});
    EXPECT_EQ(pushed.At(0) + "; " + pushed.At(1), "10 10 90 24; 94 10 120 24");
    // What only touches its row is in nobody's way.
    const Laid touched({{1, 10, 10, 60, 24, ControlKind::kText, 100},
                        {2, 70, 24, 190, 38, ControlKind::kField, 20},
                        foot},
                       200, 100, {});
    EXPECT_EQ(touched.At(0) + "; " + touched.At(1), "10 10 190 24; 70 24 190 38");
}

TEST(DialogLayout, LongTextsFindRoom) {
    auto places = Designed();
    places[kLabel].textWidth = 60;
    EXPECT_EQ(Laid(places, 200, 100).At(kField), "74 10 190 24") << "the label takes of its field";

    places[kLabel].textWidth = 140;
    const Laid above(places, 200, 200);
    EXPECT_EQ(above.At(kField), "10 26 146 40") << "stands below its label";
    EXPECT_EQ(above.At(kListed).substr(0, 5), "10 46");

    // Two of them in a row stay in it.
    places = Designed();
    places[0].textWidth = 60;
    places[1].right = 96;
    places[2] = {2, 100, 12, 140, 24, ControlKind::kLabel, 45};
    places[3] = {3, 144, 10, 190, 24, ControlKind::kField, 46};
    const Laid row(places, 200, 100, {});
    EXPECT_EQ(row.At(1), "10 26 52 40");
    EXPECT_EQ(row.At(3), "100 26 146 40");
    EXPECT_EQ(row.At(kBox), "10 92 120 108");

    places = Designed();
    places[kField].textWidth = 142;
    EXPECT_EQ(Laid(places, 200, 100).At(kField), "48 10 190 24") << "takes what the label has not";

    places = Designed();
    places[kBox].textWidth = 170;
    EXPECT_EQ(Laid(places, 200, 100).At(kBox), "10 76 190 92") << "takes what is free beside it";
    places[kBox].textWidth = 200;
    const Laid lines(places, 200, 120);
    EXPECT_EQ(lines.At(kBox), "10 84 190 112") << "takes another line";
    EXPECT_EQ(lines.needed(), 120);
}

}  // namespace
