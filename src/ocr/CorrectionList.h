// The correction list: a text file of pairs of wrong and right text.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

class Files;

struct Correction {
  std::u16string wrong;
  std::u16string right;  // empty: delete the wrong text
  bool operator==(const Correction&) const = default;
};

/// Reads the bytes of a list (code page 1252) pair by pair. Each line, ended by CR LF or LF, is a
/// pair, split at its first "=:="; spaces are significant.
class CorrectionReader {
 public:
  /// `bytes` must outlive the reader.
  explicit CorrectionReader(std::string_view bytes) : rest_(bytes) {}

  /// The next pair; empty at the end. A line without separator, even an empty line, raises
  /// InvalidArgument, and one of more than 32,767 characters Overflow; the description names the
  /// line.
  std::optional<Correction> Next();

 private:
  std::string_view TakeLine();

  std::string_view rest_;
  std::int64_t line_ = 0;  // number of the line read last, from 1
};

/// Appends one line to the list, creating the file if missing; concurrent additions by several
/// programs are all kept. The pair is written as it is, even if it cannot be read back. A character
/// that code page 1252 lacks raises InvalidArgument, and nothing is written. File errors propagate.
void AppendCorrection(Files& files, std::u16string_view path, std::u16string_view wrong,
                      std::u16string_view right);

}  // namespace lumenote
