// The acknowledgement that a drop target sends.
#pragma once
#include <QAbstractNativeEventFilter>
#include <cstdint>

namespace lumenote {

/// Listens during its lifetime, on X11 only: programs of other desktops do not tell what became of
/// a drop.
class DropReceipt : public QAbstractNativeEventFilter {
 public:
  DropReceipt();
  ~DropReceipt() override;
  DropReceipt(const DropReceipt&) = delete;
  DropReceipt& operator=(const DropReceipt&) = delete;

  /// Whether exactly one target has answered, and accepted the drop as a move.
  bool IsMove() const { return told_ == 1 && move_; }

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  std::uint32_t finished_ = 0;  // the protocol's message
  std::uint32_t moving_ = 0;    // its action
  int told_ = 0;
  bool move_ = false;
};

}  // namespace lumenote
