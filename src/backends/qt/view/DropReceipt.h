// What the target of a drag says when it is done with the drop.
#pragma once
#include <QAbstractNativeEventFilter>
#include <cstdint>

namespace lumenote {

/// Listens as long as it lives; knows nothing where the desktop is not X11's, whose programs alone
/// tell what became of a drop.
class DropReceipt : public QAbstractNativeEventFilter {
 public:
  DropReceipt();
  ~DropReceipt() override;
  DropReceipt(const DropReceipt&) = delete;
  DropReceipt& operator=(const DropReceipt&) = delete;

  /// Whether the one target that has told has taken what was dropped, to be moved there.
  bool IsMove() const { return told_ == 1 && move_; }

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  std::uint32_t finished_ = 0;  // the protocol's message
  std::uint32_t moving_ = 0;    // its action
  int told_ = 0;
  bool move_ = false;
};

}  // namespace lumenote
