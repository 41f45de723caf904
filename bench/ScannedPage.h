// A scanned page of about 30 KB to clean up.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

inline constexpr std::u16string_view kCorrectionsPath = u"C:\\ListCorr.txt";

/// A wrong word and untidy blanks in every line.
std::u16string ScannedPage();
/// The list of 500 pairs that mends every word, as bytes of a file.
std::string Corrections();

}  // namespace lumenote
