// Reading, recognising and writing notes.
#include "NoteFile.h"

#include <filesystem>
#include <iostream>
#include <iterator>
#include <system_error>

#include "Command.h"
#include "backends/posix/files/Descriptor.h"
#include "backends/posix/saving/ReplaceFile.h"
#include "backends/posix/state/PosixStateFolder.h"
#include "base/Characters.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "rtf/read/Reader.h"
#include "rtf/write/Writer.h"
#include "surface/editing/TextBytes.h"

namespace lumenote::tool {
namespace {

constexpr std::string_view kStream = "-";

Format FormatOf(const std::string& name, std::string_view bytes) {
  const std::optional<Format> named = FormatOfName(name);
  const bool looksLikeRtf = LooksLikeRtf(bytes);
  if (named == Format::Rtf && !looksLikeRtf) throw Failure(name + " : n'est pas un fichier RTF");
  return named.value_or(looksLikeRtf ? Format::Rtf : Format::Text);
}

std::string ReadStandardInput() {
  std::string bytes{std::istreambuf_iterator<char>(std::cin), {}};
  if (std::cin.bad()) throw Failure("entrée standard : lecture impossible");
  return bytes;
}

void WriteStandardOutput(std::string_view bytes) {
  std::cout.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
  if (!std::cout) throw Failure("sortie standard : écriture impossible");
}

}  // namespace

std::string Absolute(const std::string& name) {
  std::error_code error;
  const std::filesystem::path path = std::filesystem::absolute(name, error);
  return error ? name : path.string();
}

std::optional<Format> FormatOfName(std::string_view name) {
  const std::u16string lower = Lower(FromUtf8(name));
  if (lower.ends_with(u".rtf")) return Format::Rtf;
  if (lower.ends_with(u".txt")) return Format::Text;
  return {};
}

Note::Note(const std::string& name, std::string_view bytes) : source_(FormatOf(name, bytes)) {
  if (source_ == Format::Text) form_ = FormOfText(bytes);
  if (source_ == Format::Rtf)
    surface_.TextRTF(UnitsOfBytes(bytes));
  else
    surface_.Text(DecodeText(bytes, form_));
}

std::string Note::Bytes(Format format) const {
  return format == Format::Rtf ? WriteRtf(surface_.Content()) : EncodeTextFile(Text(), form_);
}

std::string ReadBytes(const std::string& name) {
  if (name == kStream) return ReadStandardInput();
  try {
    return ReadWholeFile(Absolute(name));
  } catch (const RuntimeError& error) {
    throw Failure(name + " : lecture impossible : " + error.what());
  }
}

void WriteBytes(const std::string& name, std::string_view bytes) {
  constexpr mode_t kNewFileMode = 0666;
  if (name == kStream) return WriteStandardOutput(bytes);
  try {
    PosixStateFolder backups(PosixStateFolder::OfUser(), DrivePaths("/"));
    SaveFile(Absolute(name), bytes, kNewFileMode, &backups);
  } catch (const RuntimeError& error) {
    throw Failure(name + " : écriture impossible : " + error.what());
  }
}

}  // namespace lumenote::tool
