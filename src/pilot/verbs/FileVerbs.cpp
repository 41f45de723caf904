// Preparing and inspecting the sandbox's files.
#include <optional>
#include <string>

#include "base/Strings.h"
#include "base/TextEncoding.h"
#include "base/Windows1252.h"
#include "pilot/context/ScriptContext.h"
#include "pilot/language/Arguments.h"
#include "pilot/language/ScriptError.h"
#include "pilot/verbs/Verbs.h"
#include "platform/Files.h"

namespace lumenote::verbs {
namespace {

void WriteFile(Sandbox& sandbox, std::u16string_view path, std::string_view bytes) {
  sandbox.MakeParents(path);
  sandbox.FileSystem().Write(path, bytes);
}

std::optional<std::string> ContentOf(const Files& files, std::u16string_view path) {
  if (!files.Exists(path)) return {};
  return files.ReadAll(path);
}

std::u16string Decoded(std::string_view bytes) {
  const bool marked = DetectEncoding(bytes) == TextEncoding::Utf8WithBom;
  return DecodeText(bytes, marked ? TextEncoding::Utf8WithBom : TextEncoding::Windows1252);
}

std::string BytesOfHex(std::string_view hex) {
  std::string bytes;
  for (std::size_t i = 0; i < hex.size(); i += 2) {
    const auto unit = UnitFromHex("00" + std::string(hex.substr(i, 2)));
    if (!unit) throw ScriptError("pairs of hexadecimal digits expected");
    bytes += static_cast<char>(*unit);
  }
  return bytes;
}

std::string HexOfBytes(std::string_view bytes) {
  std::string hex;
  for (const unsigned char byte : bytes) hex += HexOfUnit(byte).substr(2);
  return hex;
}

LinkKind TakeLinkKind(Arguments& arguments) {
  const std::u16string kind = arguments.Text();
  if (kind == u"hard") return LinkKind::Hard;
  if (kind == u"symbolic") return LinkKind::Symbolic;
  throw ScriptError("hard or symbolic expected");
}

}  // namespace

Answer File(ScriptContext& context, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  const std::u16string content = arguments.Text();
  arguments.End();
  if (!Fits1252(content)) throw ScriptError("a character outside code page 1252");
  WriteFile(context.sandbox, path, Encode1252(content));
  return {};
}

Answer Bytes(ScriptContext& context, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  const std::string bytes = BytesOfHex(arguments.Name());
  arguments.End();
  WriteFile(context.sandbox, path, bytes);
  return {};
}

Answer Cat(ScriptContext& context, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  arguments.End();
  const auto bytes = ContentOf(context.sandbox.FileSystem(), path);
  return bytes ? Value(Decoded(*bytes)) : Value();
}

Answer Hex(ScriptContext& context, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  arguments.End();
  const auto bytes = ContentOf(context.sandbox.FileSystem(), path);
  return bytes ? Value(FromUtf8(HexOfBytes(*bytes))) : Value();
}

Answer Link(ScriptContext& context, Arguments& arguments) {
  const std::u16string name = arguments.Text();
  const std::u16string file = arguments.Text();
  const LinkKind kind = TakeLinkKind(arguments);
  arguments.End();
  context.sandbox.Link(name, file, kind);
  return {};
}

Answer Ls(ScriptContext& context, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  arguments.End();
  Value::Array names;
  for (std::u16string& name : context.sandbox.List(path)) names.emplace_back(std::move(name));
  return names;
}

Answer Rm(ScriptContext& context, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  arguments.End();
  context.sandbox.Remove(path);
  return {};
}

Answer ReadOnly(ScriptContext& context, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  const bool on = arguments.Flag();
  arguments.End();
  context.sandbox.ReadOnly(path, on);
  return {};
}

Answer Touch(ScriptContext& context, Arguments& arguments) {
  constexpr std::int64_t kSeconds = 10;
  const std::u16string path = arguments.Text();
  arguments.End();
  context.sandbox.Age(path, kSeconds);
  return {};
}

}  // namespace lumenote::verbs
