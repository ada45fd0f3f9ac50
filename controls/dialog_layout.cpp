#include "controls/dialog_layout.h"

#include <algorithm>
#include <numeric>

namespace {

using Places = std::vector<ControlPlace>;

bool ShareColumn(const ControlPlace& a, const ControlPlace& b) {
    return a.left < b.right && b.left < a.right;
}

bool ShareRow(const ControlPlace& a, const ControlPlace& b) {
    return a.top < b.bottom && b.top < a.bottom;
}

int WidthOf(const ControlPlace& place) { return place.right - place.left; }
int HeightOf(const ControlPlace& place) { return place.bottom - place.top; }

// One run over the controls of a dialog.
class Fitting {
  public:
    Fitting(Places& places, std::span<const Fill> fills, const LayoutMetrics& metrics,
            const HeightAtWidth& heightAt)
        : places_(places), metrics_(metrics), heightAt_(heightAt) {
        for (const Fill& fill : fills) {
            for (std::size_t i = 0; i < places.size(); ++i) {
                if (places[i].id == fill.control && places[i].shown)
                    filling_.push_back({i, fill.least});
            }
        }
        FindColumns();
    }

    // Whatever stands right of the leftmost filling control goes along with its right edge.
    void FitWidth(int extra) {
        int edge = metrics_.width - metrics_.rightMargin;
        for (const Filling& fill : filling_) edge = std::min(edge, places_[fill.index].right);
        for (ControlPlace& place : places_) {
            if (place.right < edge) continue;
            if (place.left >= edge || WidthOf(place) <= metrics_.narrow) place.left += extra;
            place.right += extra;
        }
    }

    void FitTexts() {
        for (std::size_t i = 0; i < places_.size(); ++i) {
            const ControlPlace* const field = FieldOf(i);
            if (field && !(Fits(places_[i]) && Fits(*field))) {
                ShareRows(places_[i].left, field->left);
            }
        }
        for (std::size_t i = 0; i < places_.size(); ++i) {
            if (places_[i].shown && !Fits(places_[i]) && !FieldOf(i)) PushRight(i);
        }
        const Places before = places_;
        for (std::size_t i = 0; i < places_.size(); ++i) {
            ControlPlace& place = places_[i];
            const bool breaks =
                place.kind == ControlKind::kText || place.kind == ControlKind::kLabel;
            if (!breaks || !place.shown || Fits(place)) continue;
            place.bottom = std::max(place.bottom, place.top + heightAt_(i, WidthOf(place)));
        }
        MakeRoom(before);
    }

    void FitHeight(int height) {
        const Places before = places_;
        for (const Filling& fill : filling_) {
            if (!fill.least) continue;
            const ControlPlace& own = before[fill.index];
            int lowest = 0, sharers = 1;
            for (std::size_t i = 0; i < before.size(); ++i) {
                if (columns_[i] == columns_[fill.index] && before[i].shown) {
                    lowest = std::max(lowest, before[i].bottom);
                }
            }
            // Those above and below each other share what there is.
            for (const Filling& other : filling_) {
                const bool shares = other.index != fill.index && other.least;
                if (shares && ShareColumn(before[other.index], own)) ++sharers;
            }
            const int extra = height - metrics_.bottomMargin - lowest;
            places_[fill.index].bottom += std::max(extra / sharers, fill.least - HeightOf(own));
        }
        MakeRoom(before);
    }

    int NeededHeight() const {
        int lowest = 0;
        for (const ControlPlace& place : places_) {
            if (place.shown) lowest = std::max(lowest, place.bottom);
        }
        return lowest + metrics_.bottomMargin;
    }

  private:
    struct Filling {
        std::size_t index;
        int least;
    };

    static bool Fits(const ControlPlace& place) { return place.textWidth <= WidthOf(place); }

    bool StandsRightOf(const ControlPlace& a, const ControlPlace& b) const {
        return ShareRow(a, b) && b.left >= a.right && b.left - a.right <= metrics_.labelGap;
    }

    // Controls above, below and close beside each other are of one column of the dialog.
    void FindColumns() {
        columns_.resize(places_.size());
        std::iota(columns_.begin(), columns_.end(), std::size_t{0});
        for (std::size_t i = 0; i < places_.size(); ++i) {
            for (std::size_t j = 0; j < places_.size(); ++j) {
                const ControlPlace &a = places_[i], &b = places_[j];
                if (!a.shown || !b.shown || columns_[i] == columns_[j]) continue;
                // A check box may end close before another column.
                const bool beside = a.kind != ControlKind::kText && StandsRightOf(a, b);
                if (!ShareColumn(a, b) && !beside) continue;
                std::replace(columns_.begin(), columns_.end(), std::size_t{columns_[j]},
                             std::size_t{columns_[i]});
            }
        }
    }

    // What a label stands before; null when it stands alone.
    const ControlPlace* FieldOf(std::size_t label) const {
        if (places_[label].kind != ControlKind::kLabel || !places_[label].shown) return nullptr;
        for (const ControlPlace& place : places_) {
            if (place.kind == ControlKind::kField && StandsRightOf(places_[label], place)) {
                return &place;
            }
        }
        return nullptr;
    }

    std::size_t IndexOf(const ControlPlace* place) const {
        return static_cast<std::size_t>(place - places_.data());
    }

    // All labels from `left` on whose fields begin at `fieldLeft` stay in line.
    void ShareRows(int left, int fieldLeft) {
        std::vector<std::size_t> labels;
        // By how much the fields' edge must go right for the labels, and may for the fields.
        int least = -metrics_.width, most = metrics_.width;
        for (std::size_t i = 0; i < places_.size(); ++i) {
            const ControlPlace* const field = FieldOf(i);
            if (!field || places_[i].left != left || field->left != fieldLeft) continue;
            labels.push_back(i);
            least = std::max(least, places_[i].textWidth - WidthOf(places_[i]));
            most = std::min(most, RightLimit(IndexOf(field)) - field->left - field->textWidth);
        }
        const int by = least > 0 ? least : std::min(most, 0);
        for (const std::size_t label : labels) {
            const ControlPlace* const found = FieldOf(label);
            if (!found) continue;  // Another label's field has moved in between.
            const std::size_t field = IndexOf(found);
            if (least <= most) {
                MoveBeside(label, field, by);
            } else if (!Fits(places_[label]) ||
                       RightLimit(field) - places_[field].left < places_[field].textWidth) {
                MoveBelow(label, field);
            }
        }
    }

    void MoveBeside(std::size_t label, std::size_t field, int by) {
        places_[label].right += by;
        const int limit = RightLimit(field);
        places_[field].left += by;
        places_[field].right = std::max(
            places_[field].right, std::min(limit, places_[field].left + places_[field].textWidth));
    }

    void MoveBelow(std::size_t label, std::size_t field) {
        const Places before = places_;
        const ControlPlace old = places_[field];
        const int top = places_[label].bottom + metrics_.lineGap;
        for (ControlPlace& place : places_) {
            // With what touches it, such as the arrows of a number.
            const bool touches = place.left >= old.left && place.left <= old.right;
            if (!touches || !ShareRow(place, old)) continue;
            const int width = WidthOf(place), height = HeightOf(place);
            place.left += places_[label].left - old.left;
            place.right = place.left + width;
            place.top += top - old.top;
            place.bottom = place.top + height;
        }
        places_[label].right = std::max(places_[label].right, RightLimit(label));
        MakeRoom(before, field);
    }

    int RightOfColumn(std::size_t index) const {
        int right = places_[index].right;
        for (std::size_t i = 0; i < places_.size(); ++i) {
            if (columns_[i] == columns_[index] && places_[i].shown) {
                right = std::max(right, places_[i].right);
            }
        }
        return right;
    }

    // Takes what its row leaves of the column for a control that is too narrow.
    void PushRight(std::size_t index) {
        const ControlPlace own = places_[index];
        int last = own.right;
        std::vector<ControlPlace*> followers;
        for (std::size_t i = 0; i < places_.size(); ++i) {
            ControlPlace& place = places_[i];
            if (!place.shown || columns_[i] != columns_[index]) continue;
            if (!ShareRow(own, place) || place.left < own.right) continue;
            followers.push_back(&place);
            last = std::max(last, place.right);
        }
        const int room = RightOfColumn(index) - last;
        const int by = followers.empty() ? room : std::min(own.textWidth - WidthOf(own), room);
        places_[index].right += by;
        for (ControlPlace* const follower : followers) {
            follower->left += by;
            follower->right += by;
        }
    }

    // How far to the right a control may reach: to the end of its column or to what is beside it.
    int RightLimit(std::size_t index) const {
        const ControlPlace& own = places_[index];
        int limit = RightOfColumn(index);
        for (const ControlPlace& other : places_) {
            if (other.shown && ShareRow(own, other) && other.left >= own.right) {
                limit = std::min(limit, std::max(own.right, other.left - metrics_.labelGap));
            }
        }
        return limit;
    }

    // Keeps the distance to the lowest that stands above in the same column. A field that went
    // below its label does not push one beside it that had gone below its own.
    void MakeRoom(const Places& before, std::size_t lowered = static_cast<std::size_t>(-1)) {
        std::vector<std::size_t> order(places_.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::stable_sort(order.begin(), order.end(), [&before](std::size_t a, std::size_t b) {
            return before[a].top < before[b].top;
        });
        for (const std::size_t own : order) {
            int lowestBefore = -1, lowest = -1;
            for (const std::size_t above : order) {
                if (columns_[above] != columns_[own] || !before[above].shown) continue;
                if (before[above].bottom > before[own].top) continue;
                if (above == lowered && places_[above].top == before[own].top &&
                    !ShareColumn(places_[above], before[own])) {
                    continue;
                }
                lowestBefore = std::max(lowestBefore, before[above].bottom);
                lowest = std::max(lowest, places_[above].bottom);
            }
            if (lowestBefore < 0) continue;
            // What moved by itself keeps its own way.
            const int way = places_[own].top - before[own].top + lowest - lowestBefore;
            places_[own].bottom += before[own].top + way - places_[own].top;
            places_[own].top = before[own].top + way;
        }
    }

    Places& places_;
    const LayoutMetrics& metrics_;
    const HeightAtWidth& heightAt_;
    std::vector<Filling> filling_;
    std::vector<std::size_t> columns_;  // of each control; which numbers does not matter
};

}  // namespace

int FitToDialog(Places& places, std::span<const Fill> fills, const LayoutMetrics& metrics,
                int width, int height, const HeightAtWidth& heightAt) {
    Fitting fitting(places, fills, metrics, heightAt);
    fitting.FitWidth(width - metrics.width);
    fitting.FitTexts();
    fitting.FitHeight(height);
    return fitting.NeededHeight();
}
