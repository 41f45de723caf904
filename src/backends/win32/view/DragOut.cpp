#include "backends/win32/view/DragOut.h"

#include "backends/win32/view/TransferData.h"

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

/// Tells for a block what is dragged.
class DraggedScope {
 public:
  DraggedScope(TextDrag*& dragged, TextDrag& text) : dragged_(dragged) { dragged_ = &text; }
  ~DraggedScope() { dragged_ = nullptr; }
  DraggedScope(const DraggedScope&) = delete;
  DraggedScope& operator=(const DraggedScope&) = delete;

 private:
  TextDrag*& dragged_;
};

}  // namespace

void DragOut::Run(NoteView& view) {
  TextDrag text(view);
  const DraggedScope running(dragged_, text);
  takenBack_ = false;
  const ComOwner<TransferData> data(new TransferData(text.Text()));
  const ComOwner<DragSource> source(new DragSource());
  const DWORD offered = view.IsLocked() ? DROPEFFECT_COPY : DROPEFFECT_COPY | DROPEFFECT_MOVE;
  DWORD done = DROPEFFECT_NONE;
  const HRESULT result = DoDragDrop(data.get(), source.get(), offered, &done);
  if (result == DRAGDROP_S_DROP && (done & offered & DROPEFFECT_MOVE) && !takenBack_) text.Moved();
}

void DragOut::DropBack(ViewDrop& rules, PixelPoint at, bool copy) {
  takenBack_ = true;
  rules.DropBack(at, *dragged_, copy);
}

}  // namespace lumenote
