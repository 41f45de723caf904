// A window of another thread, which is to ours as one of another program.
#pragma once
#include <atomic>
#include <future>
#include <thread>

#include "backends/win32/view/TransferData.h"

namespace lumenote {

/// Takes what is dropped on it and, when it is pressed, drags an excerpt.
class Elsewhere {
 public:
  /// What it says of a drop.
  struct Manners {
    DWORD effect = DROPEFFECT_COPY;
    HRESULT answer = S_OK;
  };

  Elsewhere(RECT place, const TextExcerpt& dragged) : dragged_(dragged) {
    std::promise<HWND> made;
    thread_ = std::thread([&] { Run(place, made); });
    window_ = made.get_future().get();
  }
  ~Elsewhere() {
    PostMessageW(window_, WM_CLOSE, 0, 0);
    thread_.join();
  }
  Elsewhere(const Elsewhere&) = delete;
  Elsewhere& operator=(const Elsewhere&) = delete;

  HWND Handle() const { return window_; }

  std::atomic<Manners> manners = Manners();
  std::u16string taken;  // after a drop
  std::atomic<bool> dragging = false;
  std::atomic<DWORD> done = DROPEFFECT_NONE;  // after a drag

 private:
  class Target final : public ComObject<IDropTarget> {
   public:
    explicit Target(Elsewhere& owner) : owner_(owner) {}
    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject*, DWORD, POINTL, DWORD* effect) override {
      *effect = owner_.manners.load().effect;
      return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL, DWORD* effect) override {
      *effect = owner_.manners.load().effect;
      return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
      *effect = owner_.manners.load().effect;
      owner_.taken = ReadTransfer(*data).text.value_or(u"");
      return owner_.manners.load().answer;
    }

   private:
    Elsewhere& owner_;
  };

  class Source final : public ComObject<IDropSource> {
   public:
    HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL, DWORD keys) override {
      return keys & MK_LBUTTON ? S_OK : DRAGDROP_S_DROP;
    }
    HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD) override { return S_OK; }
  };

  void Run(RECT place, std::promise<HWND>& made) {
    const OleScope ole;
    const HWND window = CreateWindowExW(
        WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE | SS_NOTIFY, place.left, place.top,
        place.right - place.left, place.bottom - place.top, nullptr, nullptr, nullptr, nullptr);
    const ComOwner<Target> target(new Target(*this));
    RegisterDragDrop(window, target.get());
    made.set_value(window);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0 && message.message != WM_CLOSE) {
      if (message.message == WM_LBUTTONDOWN) Drag();
      DispatchMessageW(&message);
    }
    RevokeDragDrop(window);
    DestroyWindow(window);
  }

  void Drag() {
    dragging = true;
    const ComOwner<TransferData> data(new TransferData(dragged_));
    const ComOwner<Source> source(new Source());
    DWORD effect = DROPEFFECT_NONE;
    DoDragDrop(data.get(), source.get(), DROPEFFECT_COPY | DROPEFFECT_MOVE, &effect);
    done = effect;
    dragging = false;
  }

  TextExcerpt dragged_;
  std::thread thread_;
  HWND window_ = nullptr;
};

}  // namespace lumenote
