// Consumes words and JSON values from a line.
#include "pilot/language/Arguments.h"

#include <algorithm>
#include <cmath>

#include "base/Strings.h"
#include "pilot/language/ScriptError.h"

namespace lumenote {
namespace {

constexpr std::string_view kBlanks = " \t";

void SkipBlanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
}

Value ReadJsonArgument(std::string_view& text) {
  try {
    return ReadJson(text);
  } catch (const JsonError& error) {
    throw ScriptError(error.what());
  }
}

/// A word that is a JSON literal is that value; any other word is a string.
Value WordValue(std::string_view word) {
  std::string_view rest = word;
  try {
    Value value = ReadJson(rest);
    if (rest.empty()) return value;
  } catch (const JsonError&) {
  }
  return FromUtf8(word);
}

}  // namespace

std::string_view TakeVerb(std::string_view& line) {
  SkipBlanks(line);
  if (line.starts_with('#')) return {};
  const std::string_view verb = line.substr(0, line.find_first_of(kBlanks));
  line.remove_prefix(verb.size());
  return verb;
}

bool Arguments::AtEnd() {
  SkipBlanks(text_);
  return text_.empty() || text_.starts_with('#');
}

void Arguments::End() {
  if (!AtEnd()) throw ScriptError("too many arguments");
}

Arguments::Argument Arguments::Next() {
  if (AtEnd()) throw ScriptError("argument missing");
  if (std::string_view("\"[{").find(text_[0]) == std::string_view::npos) return NextWord();
  const std::string_view source = text_;
  Value value = ReadJsonArgument(text_);
  if (!text_.empty() && kBlanks.find(text_[0]) == std::string_view::npos)
    throw ScriptError("blank expected after an argument");
  return {std::move(value), source.substr(0, source.size() - text_.size())};
}

Arguments::Argument Arguments::NextWord() {
  const std::string_view word = text_.substr(0, text_.find_first_of(kBlanks));
  text_.remove_prefix(word.size());
  return {WordValue(word), word};
}

Value Arguments::Any() { return Next().value; }

Value Arguments::Json() {
  const Argument argument = Next();
  if (argument.value.AsString() && !argument.source.starts_with('"'))
    throw ScriptError("JSON value expected");
  return argument.value;
}

std::u16string Arguments::Text() {
  const Argument argument = Next();
  if (argument.value.AsNumber()) return FromUtf8(argument.source);
  if (const std::u16string* text = argument.value.AsString()) return *text;
  throw ScriptError("string expected");
}

std::string Arguments::Name() { return ToUtf8(Text()); }

double Arguments::Number(double least, double most) {
  const Value value = Any();
  const double* number = value.AsNumber();
  if (!number) throw ScriptError("number expected");
  if (*number < least || *number > most) throw ScriptError("number out of range");
  return *number;
}

std::int32_t Arguments::Whole(std::int32_t least, std::int32_t most) {
  const double number = Number(least, most);
  if (number != std::trunc(number)) throw ScriptError("whole number expected");
  return static_cast<std::int32_t>(number);
}

bool Arguments::Flag() {
  const Value value = Any();
  if (const bool* flag = value.AsBool()) return *flag;
  throw ScriptError("true or false expected");
}

std::string_view Arguments::Rest() {
  SkipBlanks(text_);
  return std::exchange(text_, {});
}

}  // namespace lumenote
