#include "backends/win32/view/TransferData.h"

#include <algorithm>
#include <array>
#include <new>
#include <vector>

#include "backends/win32/clipboard/HtmlFormat.h"
#include "backends/win32/clipboard/SharedText.h"
#include "base/Strings.h"

// After the system's own header.
#include <shlobj.h>

namespace lumenote {

namespace {

CLIPFORMAT RtfFormat() {
  static const UINT format = RegisterClipboardFormatW(L"Rich Text Format");
  return static_cast<CLIPFORMAT>(format);
}

/// The formats that are offered and taken, the richest first.
std::array<CLIPFORMAT, 3> Formats() {
  return {RtfFormat(), static_cast<CLIPFORMAT>(HtmlFormat()), CF_UNICODETEXT};
}

FORMATETC FormatOf(CLIPFORMAT format) {
  return {format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

bool IsOffered(const FORMATETC& format) {
  const auto formats = Formats();
  return (format.tymed & TYMED_HGLOBAL) && format.dwAspect == DVASPECT_CONTENT &&
         std::ranges::find(formats, format.cfFormat) != formats.end();
}

HGLOBAL CopyOf(const TextExcerpt& text, CLIPFORMAT format) {
  if (format == CF_UNICODETEXT) return SharedCopy(text.Text());
  return SharedCopy(format == RtfFormat() ? text.Rtf() : WithHtmlHeader(text.Html()));
}

/// What is offered in a format.
template <class Text>
std::optional<Text> Taken(IDataObject& data, CLIPFORMAT format) {
  FORMATETC wanted = FormatOf(format);
  STGMEDIUM medium = {};
  if (FAILED(data.GetData(&wanted, &medium))) return std::nullopt;
  std::optional<Text> text = TextIn<Text>(medium.hGlobal);
  ReleaseStgMedium(&medium);
  return text;
}

}  // namespace

HRESULT TransferData::QueryGetData(FORMATETC* format) {
  return IsOffered(*format) ? S_OK : DV_E_FORMATETC;
}

HRESULT TransferData::GetData(FORMATETC* format, STGMEDIUM* medium) {
  if (!IsOffered(*format)) return DV_E_FORMATETC;
  *medium = {};
  try {
    medium->tymed = TYMED_HGLOBAL;
    medium->hGlobal = CopyOf(text_, format->cfFormat);
  } catch (const std::bad_alloc&) {
  }
  return medium->hGlobal ? S_OK : E_OUTOFMEMORY;
}

HRESULT TransferData::GetCanonicalFormatEtc(FORMATETC*, FORMATETC* out) {
  out->ptd = nullptr;
  return DATA_S_SAMEFORMATETC;
}

HRESULT TransferData::EnumFormatEtc(DWORD direction, IEnumFORMATETC** out) {
  if (direction != DATADIR_GET) return E_NOTIMPL;
  std::vector<FORMATETC> formats;
  for (const CLIPFORMAT format : Formats()) formats.push_back(FormatOf(format));
  return SHCreateStdEnumFmtEtc(static_cast<UINT>(formats.size()), formats.data(), out);
}

bool HasTransfer(IDataObject& data) {
  return std::ranges::any_of(Formats(), [&](CLIPFORMAT format) {
    FORMATETC wanted = FormatOf(format);
    return data.QueryGetData(&wanted) == S_OK;
  });
}

ClipboardContent ReadTransfer(IDataObject& data) {
  ClipboardContent content;
  content.text = Taken<std::u16string>(data, CF_UNICODETEXT);
  content.rtf = Taken<std::string>(data, RtfFormat());
  if (content.text) content.text = WithCrLf(*content.text);
  if (content.rtf && content.rtf->empty()) content.rtf.reset();
  const auto html = Taken<std::string>(data, static_cast<CLIPFORMAT>(HtmlFormat()));
  if (html) content.html = WithoutHtmlHeader(*html);
  return content;
}

}  // namespace lumenote
