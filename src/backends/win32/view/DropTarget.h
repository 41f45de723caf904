// Takes what is dropped on a window.
#pragma once
#include "backends/win32/system/ComObject.h"
#include "backends/win32/view/DragOut.h"
#include "view/acts/ViewDrop.h"

namespace lumenote {

/// Text of the view itself is moved (copied with Ctrl), other text is inserted. Registered while
/// the window lives; refuses everything once the view is detached.
class DropTarget final : public ComObject<IDropTarget> {
 public:
  /// `view` and `own` belong to `window`, which calls `Revoke` before they go.
  DropTarget(HWND window, NoteView& view, DragOut& own);

  /// Takes no more drops; the window goes.
  void Revoke();

  HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD keys, POINTL at,
                                      DWORD* effect) override;
  HRESULT STDMETHODCALLTYPE DragOver(DWORD keys, POINTL at, DWORD* effect) override;
  HRESULT STDMETHODCALLTYPE DragLeave() override;
  HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) override;

 private:
  bool Takes() const { return window_ && view_.IsAttached() && !view_.IsLocked(); }
  DWORD Chosen(DWORD keys, DWORD offered) const;
  PixelPoint PointOf(POINTL at) const;

  HWND window_;  // null once it goes
  NoteView& view_;
  DragOut& own_;
  ViewDrop rules_{view_};
  bool readable_ = false;  // what is dragged over the window now
};

}  // namespace lumenote
