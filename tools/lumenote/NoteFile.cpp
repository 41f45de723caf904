// Reads and writes notes and detects their format.
#include "NoteFile.h"

#include <iostream>

#include "Command.h"
#include "backends/native/files/Disk.h"
#include "backends/native/files/StandardInput.h"
#include "backends/native/saving/SaveFile.h"
#include "backends/native/state/NativeStateFolder.h"
#include "base/Characters.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "base/TextEncoding.h"

namespace lumenote::tool {
namespace {

constexpr std::string_view kStream = "-";

void WriteStandardOutput(std::string_view bytes) {
  std::cout.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
  if (!std::cout) throw Failure("sortie standard : écriture impossible");
}

bool IsBinary(std::string_view bytes) {
  const TextEncoding encoding = DetectEncoding(bytes);
  const bool wide = encoding == TextEncoding::Utf16Le || encoding == TextEncoding::Utf16Be;
  return !wide && bytes.find('\0') != bytes.npos;
}

}  // namespace

std::optional<Note::Format> FormatOfName(std::string_view name) {
  const std::u16string lower = Lower(FromUtf8(name));
  if (lower.ends_with(u".rtf")) return Note::Format::Rtf;
  if (lower.ends_with(u".txt")) return Note::Format::Text;
  if (lower.ends_with(u".html") || lower.ends_with(u".htm")) return Note::Format::Html;
  return {};
}

Note ReadNote(const std::string& name) { return NoteOf(name, ReadBytes(name)); }

Note NoteOf(const std::string& name, const std::string& bytes) {
  const auto named = FormatOfName(name);
  const bool otherwise = named ? named == Note::Format::Rtf : IsBinary(bytes);
  if (otherwise && !Note::IsRtf(bytes)) throw Failure(name + " : n'est pas un fichier RTF");
  return named ? Note(bytes, *named) : Note(bytes);
}

std::string ReadBytes(const std::string& name) {
  try {
    if (name == kStream) return ReadStandardInput();
    return ReadWholeFile(AbsolutePath(name));
  } catch (const RuntimeError& error) {
    throw Failure(name + " : lecture impossible : " + error.what());
  }
}

void WriteBytes(const std::string& name, std::string_view bytes) {
  if (name == kStream) return WriteStandardOutput(bytes);
  try {
    NativeStateFolder backups(NativeStateFolder::OfUser(), DrivePaths("/"));
    SaveFile(AbsolutePath(name), bytes, &backups);
  } catch (const RuntimeError& error) {
    throw Failure(name + " : écriture impossible : " + error.what());
  }
}

}  // namespace lumenote::tool
