#include "backends/win32/view/TransferData.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "base/Strings.h"

// After the system's own header.
#include <shlobj.h>

namespace lumenote {

namespace {

CLIPFORMAT RtfFormat() {
  static const UINT format = RegisterClipboardFormatW(L"Rich Text Format");
  return static_cast<CLIPFORMAT>(format);
}

FORMATETC FormatOf(CLIPFORMAT format) {
  return {format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

bool IsOffered(const FORMATETC& format) {
  return (format.tymed & TYMED_HGLOBAL) && format.dwAspect == DVASPECT_CONTENT &&
         (format.cfFormat == CF_UNICODETEXT || format.cfFormat == RtfFormat());
}

/// A copy of the text with a zero unit at its end; null if there is no memory for it.
template <class Text>
HGLOBAL CopyOf(const Text& text) {
  const std::size_t size = (text.size() + 1) * sizeof text[0];
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  if (!memory) return nullptr;
  std::memcpy(GlobalLock(memory), text.c_str(), size);
  GlobalUnlock(memory);
  return memory;
}

/// What is offered in a format, up to the first zero unit.
template <class Text>
std::optional<Text> Taken(IDataObject& data, CLIPFORMAT format) {
  FORMATETC wanted = FormatOf(format);
  STGMEDIUM medium = {};
  if (FAILED(data.GetData(&wanted, &medium))) return std::nullopt;
  Text text;
  const auto* units = static_cast<const typename Text::value_type*>(GlobalLock(medium.hGlobal));
  if (units) {
    const std::size_t size = GlobalSize(medium.hGlobal) / sizeof *units;
    text.assign(units, std::find(units, units + size, 0));
    GlobalUnlock(medium.hGlobal);
  }
  ReleaseStgMedium(&medium);
  return units ? std::optional(text) : std::nullopt;
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
    medium->hGlobal =
        format->cfFormat == CF_UNICODETEXT ? CopyOf(text_.Text()) : CopyOf(text_.Rtf());
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
  const FORMATETC formats[] = {FormatOf(RtfFormat()), FormatOf(CF_UNICODETEXT)};
  return SHCreateStdEnumFmtEtc(2, formats, out);
}

bool HasTransfer(IDataObject& data) {
  FORMATETC text = FormatOf(CF_UNICODETEXT);
  FORMATETC rtf = FormatOf(RtfFormat());
  return data.QueryGetData(&text) == S_OK || data.QueryGetData(&rtf) == S_OK;
}

ClipboardContent ReadTransfer(IDataObject& data) {
  ClipboardContent content;
  content.text = Taken<std::u16string>(data, CF_UNICODETEXT);
  content.rtf = Taken<std::string>(data, RtfFormat());
  if (content.text) content.text = WithCrLf(*content.text);
  if (content.rtf && content.rtf->empty()) content.rtf.reset();
  return content;
}

}  // namespace lumenote
