#include "tests/layout/layout_rules.h"

#include <algorithm>
#include <cstdlib>

namespace layout {

namespace {

constexpr int kLowestTarget = 15;  // pixels at 96 dots per inch
constexpr int kFieldBeside = 10;   // at most between a label and its field
constexpr int kFieldBelow = 8;
constexpr int kMargin = 9;

class Inspection {
  public:
    explicit Inspection(const Page& page) : page_(page) {}

    std::vector<std::string> Run() {
        const std::vector<Seen>& all = page_.controls;
        for (std::size_t i = 0; i < all.size(); ++i) {
            CheckAlone(all[i]);
            if (all[i].labels) CheckLabel(all[i]);
            for (std::size_t j = i + 1; j < all.size(); ++j) CheckPair(all[i], all[j]);
        }
        CheckOrder();
        return std::move(faults_);
    }

  private:
    int Scaled(int length) const { return (length * page_.dpi + 48) / 96; }

    void Report(const std::string& rule, const Seen& control, int pixels,
                const Seen* other = nullptr) {
        faults_.push_back(rule + ": " + control.name + (other ? " and " + other->name : "") + ", " +
                          std::to_string(pixels) + " px");
    }

    void CheckAlone(const Seen& seen) {
        const int width = seen.right - seen.left, height = seen.bottom - seen.top;
        // A list that has all of the screen can do no more for its longest entry.
        const bool widest = seen.kind == Kind::kList && seen.left <= Scaled(kMargin) &&
                            seen.right >= page_.width - Scaled(kMargin);
        if (seen.wantedWidth > width && !widest) Report("cut", seen, seen.wantedWidth - width);
        if (seen.wantedHeight > height) Report("cut below", seen, seen.wantedHeight - height);
        const int outside = std::max({-seen.left, page_.top - seen.top, seen.right - page_.width});
        if (outside > 0) Report("outside", seen, outside);
        if (seen.bottom > page_.bottom) Report("unreachable", seen, seen.bottom - page_.bottom);
        if (seen.tapped && height < Scaled(kLowestTarget)) {
            Report("low", seen, Scaled(kLowestTarget) - height);
        }
    }

    static int Overlap(int begin, int end, int otherBegin, int otherEnd) {
        return std::min(end, otherEnd) - std::max(begin, otherBegin);
    }

    void CheckPair(const Seen& a, const Seen& b) {
        const int across = Overlap(a.left, a.right, b.left, b.right);
        const int down = Overlap(a.top, a.bottom, b.top, b.bottom);
        if (across > 0 && down > 0) Report("overlap", a, std::min(across, down), &b);
        // What stands nearly in line was meant to.
        const auto nearly = [this](int x, int y) { return x != y && std::abs(x - y) <= Scaled(2); };
        if (down <= 0 && nearly(a.left, b.left)) Report("edges", a, std::abs(a.left - b.left), &b);
        if (down <= 0 && a.kind == b.kind && a.left == b.left && nearly(a.right, b.right)) {
            Report("edges", a, std::abs(a.right - b.right), &b);
        }
        const bool alike = a.kind == b.kind && a.bottom - a.top == b.bottom - b.top;
        if (across <= 0 && alike && nearly(a.top, b.top)) {
            Report("edges", a, std::abs(a.top - b.top), &b);
        }
    }

    void CheckLabel(const Seen& label) {
        const bool found =
            std::any_of(page_.controls.begin(), page_.controls.end(), [&](const Seen& field) {
                if (&field == &label || field.labels) return false;
                const bool sameRow = Overlap(label.top, label.bottom, field.top, field.bottom) > 0;
                const int beside = field.left - label.right, below = field.top - label.bottom;
                if (sameRow) return beside >= 0 && beside <= Scaled(kFieldBeside);
                return below >= 0 && below <= Scaled(kFieldBelow) && field.left >= label.left &&
                       field.left < label.right;
            });
        if (!found) Report("label without field", label, 0);
    }

    // Down a column, along a row, or on to the top of a column further right.
    void CheckOrder() {
        const Seen* before = nullptr;
        for (const Seen& seen : page_.controls) {
            if (!seen.tabStop) continue;
            if (before && seen.top < before->bottom && seen.left < before->right) {
                Report("order", *before, before->bottom - seen.top, &seen);
            }
            before = &seen;
        }
    }

    const Page& page_;
    std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> FindFaults(const Page& page) { return Inspection(page).Run(); }

}  // namespace layout
