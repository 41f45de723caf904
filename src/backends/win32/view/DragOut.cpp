#include "backends/win32/view/DragOut.h"

#include "backends/win32/view/TransferData.h"
#include "base/ScopedFlag.h"

namespace lumenote {

namespace {

/// Escape cancels; the left button, released, drops.
class DragSource final : public ComObject<IDropSource> {
 public:
  HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escape, DWORD keys) override {
    if (escape || (keys & MK_RBUTTON)) return DRAGDROP_S_CANCEL;
    return keys & MK_LBUTTON ? S_OK : DRAGDROP_S_DROP;
  }
  HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }
};

}  // namespace

void DragOut::Run(NoteView& view) {
  TextDrag text(view);
  const ScopedFlag running(running_);
  takenBack_ = false;
  const ComOwner<TransferData> data(new TransferData(text.Text()));
  const ComOwner<DragSource> source(new DragSource());
  const DWORD offered = view.IsLocked() ? DROPEFFECT_COPY : DROPEFFECT_COPY | DROPEFFECT_MOVE;
  DWORD done = DROPEFFECT_NONE;
  const HRESULT result = DoDragDrop(data.get(), source.get(), offered, &done);
  if (result == DRAGDROP_S_DROP && (done & DROPEFFECT_MOVE) && !takenBack_) text.Moved();
}

}  // namespace lumenote
