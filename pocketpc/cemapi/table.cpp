// Tables of accounts and of folders. A table has the rows that were there when the session began.
#include <algorithm>

#include "pocketpc/cemapi/memory.h"
#include "pocketpc/cemapi/objects.h"

namespace {

// Documented; that asking for more is no mistake is a guess.
constexpr std::size_t kMostRows = 10;

class Table : public MapiObject<IMAPITable> {
  public:
    Table(MailSnapshot mail, std::vector<DWORD> nodes)
        : mail_(std::move(mail)), nodes_(std::move(nodes)) {}

    HRESULT STDMETHODCALLTYPE SetColumns(LPSPropTagArray tags, ULONG) override {
        if (const HRESULT failure = trials::NextCall()) return failure;
        if (!tags || !tags->cValues) return MAPI_E_INVALID_PARAMETER;
        columns_.assign(tags->aulPropTag, tags->aulPropTag + tags->cValues);
        return S_OK;
    }

    // Documented for tables of messages only, which this is none of; what it returns is a guess.
    HRESULT STDMETHODCALLTYPE GetRowCount(ULONG, ULONG*) override {
        if (const HRESULT failure = trials::NextCall()) return failure;
        return MAPI_E_NO_SUPPORT;
    }

    HRESULT STDMETHODCALLTYPE QueryRows(LONG count, ULONG, LPSRowSet* rows) override {
        if (const HRESULT failure = trials::NextCall()) return failure;
        if (!rows || count <= 0) return MAPI_E_INVALID_PARAMETER;
        const std::size_t end = std::min<std::size_t>(nodes_.size(), trials::TableRows());
        const std::size_t left = end - std::min(end, position_);
        const std::size_t most = std::min<std::size_t>(count, kMostRows);
        OwnedRowSet set = MakeRowSet(static_cast<ULONG>(std::min(most, left)));
        if (!set) return MAPI_E_NOT_ENOUGH_MEMORY;
        for (ULONG i = 0; i < set->cRows; ++i) {
            if (!FillRow(set->aRow[i], *mail_->Find(nodes_[position_++]))) {
                return MAPI_E_NOT_ENOUGH_MEMORY;
            }
        }
        *rows = set.release();
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE GetLastError(HRESULT, ULONG, MAPIERROR**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Advise(ULONG, IMAPIAdviseSink*, ULONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Unadvise(ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetStatus(ULONG*, ULONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryColumns(ULONG, LPSPropTagArray*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SeekRow(BOOKMARK, LONG, LONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SeekRowApprox(ULONG, ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryPosition(ULONG*, ULONG*, ULONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE FindRow(SRestriction*, BOOKMARK, ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Restrict(SRestriction*, ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateBookmark(BOOKMARK*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE FreeBookmark(BOOKMARK) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SortTable(SSortOrderSet*, ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QuerySortOrder(SSortOrderSet**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Abort() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ExpandRow(ULONG, LPBYTE, ULONG, ULONG, LPSRowSet*, ULONG*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CollapseRow(ULONG, LPBYTE, ULONG, ULONG*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE WaitForCompletion(ULONG, ULONG, ULONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCollapseState(ULONG, ULONG, LPBYTE, ULONG*, LPBYTE*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetCollapseState(ULONG, ULONG, LPBYTE, BOOKMARK*) override {
        return E_NOTIMPL;
    }

  protected:
    bool Supports(REFIID id) const override {
        return IsOneOf(&id, {&IID_IUnknown, &IID_IMAPITable});
    }

  private:
    bool FillRow(SRow& row, const MailNode& node) const {
        void* memory = nullptr;
        const std::size_t count = std::min<std::size_t>(columns_.size(), trials::RowColumns());
        if (FAILED(MAPIAllocateBuffer(static_cast<ULONG>(count * sizeof(SPropValue)), &memory))) {
            return false;
        }
        row = {0, static_cast<ULONG>(count), static_cast<SPropValue*>(memory)};
        for (std::size_t i = 0; i < count; ++i) {
            FillValue(mail_, node, columns_[i], true, memory, row.lpProps[i]);
        }
        return true;
    }

    MailSnapshot mail_;
    std::vector<DWORD> nodes_;
    std::vector<ULONG> columns_ = {PR_ENTRYID, PR_DISPLAY_NAME_W};
    std::size_t position_ = 0;
};

}  // namespace

IMAPITable* MakeTable(MailSnapshot mail, std::vector<DWORD> nodes) {
    return new Table(std::move(mail), std::move(nodes));
}
