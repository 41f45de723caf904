// Unpacks the double-byte pages and decodes with them.
//
// A packed page is a sequence of items of one or more digits, which fill the cells in order: a
// small step forward from the last character, a two-digit step in either direction, a run of
// consecutive characters, a gap of empty cells, or a character by its number.
#include "base/codepages/DoubleBytePage.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <memory>
#include <mutex>

namespace lumenote {
namespace {

constexpr int kFirstLead = 0x81, kLastLead = 0xFE;
constexpr int kFirstTrail = 0x31, kLastTrail = 0xFE;
constexpr int kRow = kLastTrail - kFirstTrail + 1;
constexpr std::size_t kCells = (kLastLead - kFirstLead + 1) * std::size_t{kRow};

// Ranges of an item's first digit: the lowest value of each kind.
constexpr int kPair = 44, kRun = 78, kGap = 79, kFar = 80;
constexpr int kBack = 700;  // the longest backward two-digit step
constexpr int kBase = 90;

/// Digits are the printable characters from "#" on, except "?" and the backslash, which are special
/// in C++ literals.
int DigitOf(char c) { return c - '#' - (c > '?') - (c > '\\'); }

constexpr char16_t kUnknown = u'\uFFFD';

class Unpacker {
 public:
  Unpacker(std::string_view packed, std::vector<char16_t>& cells)
      : packed_(packed), cells_(cells) {}

  void Run() {
    while (at_ < packed_.size()) Item(Digit());
  }

 private:
  int Digit() { return DigitOf(packed_[at_++]); }
  void Put(int unit) { cells_.push_back(static_cast<char16_t>(last_ = unit)); }
  void Item(int kind);

  std::string_view packed_;
  std::vector<char16_t>& cells_;
  std::size_t at_ = 0;
  int last_ = 0;
};

void Unpacker::Item(int kind) {
  if (kind < kPair) {
    Put(last_ + kind + 1);
  } else if (kind < kRun) {
    Put(last_ + (kind - kPair) * kBase + Digit() - kBack);
  } else if (kind == kRun) {
    for (int left = Digit() + 1; left > 0; --left) Put(last_ + 1);
  } else if (kind == kGap) {
    cells_.insert(cells_.end(), static_cast<std::size_t>(Digit()) + 1, 0);
  } else {
    const int high = (kind - kFar) * kBase + Digit();
    Put(high * kBase + Digit());
  }
}

/// The page that is used for another one.
int OwnNumber(int number) {
  switch (number) {
    case 10001:
      return 932;
    case 10002:
      return 950;
    case 10003:
      return 949;
    case 10008:
      return 936;
    default:
      return number;
  }
}

}  // namespace

DoubleBytePage::DoubleBytePage(const PackedPage& packed) : number_(packed.number) {
  cells_.reserve(kCells);
  Unpacker(packed.cells, cells_).Run();
  bytes_.resize(0x10000);
  for (std::size_t cell = cells_.size(); cell-- > 0;) {
    const std::size_t pair = (kFirstLead + cell / kRow) << 8 | (kFirstTrail + cell % kRow);
    bytes_[cells_[cell]] = static_cast<std::uint16_t>(pair);
  }
  for (int byte = 0x80; byte <= 0xFF; ++byte) {
    const auto single = static_cast<unsigned char>(byte);
    if (!Leads(single)) bytes_[Single(single)] = single;
  }
  bytes_[0] = bytes_[kUnknown] = 0;
}

bool DoubleBytePage::Is(int number) {
  return std::any_of(
      std::begin(kDoubleBytePages), std::end(kDoubleBytePages),
      [own = OwnNumber(number)](const PackedPage& page) { return page.number == own; });
}

const DoubleBytePage* DoubleBytePage::Find(int number) {
  static std::array<std::unique_ptr<const DoubleBytePage>, std::size(kDoubleBytePages)> unpacked;
  static std::array<std::once_flag, std::size(kDoubleBytePages)> once;
  for (std::size_t i = 0; i < unpacked.size(); ++i) {
    if (kDoubleBytePages[i].number != OwnNumber(number)) continue;
    std::call_once(once[i], [i] { unpacked[i].reset(new DoubleBytePage(kDoubleBytePages[i])); });
    return unpacked[i].get();
  }
  return nullptr;
}

void DoubleBytePage::Decode(std::string_view bytes, std::u16string& out) const {
  out.reserve(out.size() + bytes.size());
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    const bool pair = Leads(byte) && i + 1 < bytes.size();
    if (!pair) {
      out.push_back(Single(byte));
      continue;
    }
    const auto trail = static_cast<unsigned char>(bytes[i + 1]);
    const char16_t unit = Pair(byte, trail);
    out.push_back(unit != 0 ? unit : kUnknown);
    if (unit != 0 || trail >= 0x80) ++i;
  }
}

std::string DoubleBytePage::Encode(char16_t unit) const {
  const std::uint16_t bytes = bytes_[unit];
  if (bytes == 0) return {};
  if (bytes <= 0xFF) return {static_cast<char>(bytes)};
  return {static_cast<char>(bytes >> 8), static_cast<char>(bytes)};
}

bool DoubleBytePage::Leads(unsigned char byte) const {
  const bool single = number_ == 932 && ((byte >= 0xA0 && byte < 0xE0) || byte > 0xFC);
  return byte >= kFirstLead && byte <= kLastLead && !single;
}

char16_t DoubleBytePage::Single(unsigned char byte) const {
  if (byte < 0x80) return byte;
  if (number_ == 932 && byte > 0xA0 && byte < 0xE0) return static_cast<char16_t>(0xFEC0 + byte);
  if (number_ == 936 && byte == 0x80) return u'\u20AC';
  return byte == 0x80 || (number_ == 932 && byte == 0xA0) ? byte : kUnknown;
}

char16_t DoubleBytePage::Pair(unsigned char lead, unsigned char trail) const {
  if (trail < kFirstTrail || trail > kLastTrail) return 0;
  return cells_[static_cast<std::size_t>(lead - kFirstLead) * kRow + trail - kFirstTrail];
}

}  // namespace lumenote
