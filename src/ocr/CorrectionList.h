// The correction list: a text file of pairs, a wrong text and its right one.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

class Files;

struct Correction {
  std::u16string wrong;
  std::u16string right;  // empty: the wrong text is deleted
  bool operator==(const Correction&) const = default;
};

/// Reads the bytes of a list, code page 1252, pair by pair in file order. Every line is a pair,
/// split at its first "=:="; blanks belong to it. A line ends with CR LF or LF.
class CorrectionReader {
 public:
  /// `bytes` outlives the reader.
  explicit CorrectionReader(std::string_view bytes) : rest_(bytes) {}

  /// The next pair; empty at the end. A line without separator, an empty one too, raises
  /// InvalidArgument, one of more than 32,767 characters Overflow; the description names the line.
  std::optional<Correction> Next();

 private:
  std::string_view TakeLine();

  std::string_view rest_;
  std::int64_t line_ = 0;  // of the pair read last, counted from 1
};

/// Adds one line at the end of the list, making the file when it is missing; pairs that several
/// programs store at the same time all stay. The pair is written as it stands, be it one that
/// cannot be read back. One that code page 1252 lacks a character of raises InvalidArgument and is
/// not stored. Raises what the file system does.
void AppendCorrection(Files& files, std::u16string_view path, std::u16string_view wrong,
                      std::u16string_view right);

}  // namespace lumenote
