#include "backends/win32/view/DropTarget.h"

#include <new>

#include "backends/win32/view/TransferData.h"

namespace lumenote {

DropTarget::DropTarget(HWND window, NoteView& view, DragOut& own)
    : window_(window), view_(view), own_(own) {
  RegisterDragDrop(window, this);
}

void DropTarget::Revoke() {
  if (window_) RevokeDragDrop(window_);
  window_ = nullptr;
}

// The user's own text moves, with Ctrl it is copied. Others keep what is dragged from them, unless
// they allow nothing but to move it.
DWORD DropTarget::Chosen(DWORD keys, DWORD offered) const {
  if (!Takes() || !readable_) return DROPEFFECT_NONE;
  const bool moves = (offered & DROPEFFECT_MOVE) && !(keys & MK_CONTROL) &&
                     (own_.IsRunning() || !(offered & DROPEFFECT_COPY));
  return moves ? DROPEFFECT_MOVE : offered & DROPEFFECT_COPY;
}

PixelPoint DropTarget::PointOf(POINTL at) const {
  POINT point{at.x, at.y};
  ScreenToClient(window_, &point);
  return {1.0 * point.x, 1.0 * point.y};
}

HRESULT DropTarget::DragEnter(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) {
  readable_ = data && HasTransfer(*data);
  return DragOver(keys, at, effect);
}

HRESULT DropTarget::DragOver(DWORD keys, POINTL at, DWORD* effect) {
  *effect = Chosen(keys, *effect);
  try {
    if (*effect != DROPEFFECT_NONE) rules_.Move(PointOf(at));
  } catch (const std::bad_alloc&) {
    *effect = DROPEFFECT_NONE;
  }
  return S_OK;
}

HRESULT DropTarget::DragLeave() {
  if (window_ && view_.IsAttached()) rules_.Leave();
  return S_OK;
}

HRESULT DropTarget::Drop(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) {
  DragLeave();
  readable_ = data && HasTransfer(*data);
  *effect = Chosen(keys, *effect);
  if (*effect == DROPEFFECT_NONE) return S_OK;
  const PixelPoint point = PointOf(at);
  try {
    if (own_.IsRunning())
      own_.DropBack(rules_, point, *effect == DROPEFFECT_COPY);
    else if (!rules_.Drop(point, ReadTransfer(*data)))
      *effect = DROPEFFECT_NONE;
  } catch (const std::bad_alloc&) {
    *effect = DROPEFFECT_NONE;
  }
  return S_OK;
}

}  // namespace lumenote
