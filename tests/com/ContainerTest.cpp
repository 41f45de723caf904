// The control on a container's form, as a form designer and a running form see it.
#include <vector>

#include "ComHost.h"
#include "hosts/com/support/Unknown.h"

namespace lumenote {
namespace {

/// A container's place for one control.
class SitePart : public IOleClientSite, public IDispatch {
 public:
  HRESULT STDMETHODCALLTYPE SaveObject() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
  HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    if (id != DISPID_AMBIENT_USERMODE) return DISP_E_MEMBERNOTFOUND;
    result->vt = VT_BOOL;
    result->boolVal = running ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }

  bool running = false;

 protected:
  void* Interface(REFIID id) {
    if (IsEqualIID(id, IID_IOleClientSite)) return static_cast<IOleClientSite*>(this);
    return IsEqualIID(id, IID_IDispatch) ? static_cast<IDispatch*>(this) : nullptr;
  }
};

class Site final : public Unknown<SitePart> {};

/// The number of pixels that the control draws on a white picture.
int DrawnPixels(IUnknown& control) {
  constexpr int kSize = 32;
  const HDC canvas = CreateCompatibleDC(nullptr);
  BITMAPINFO about{{sizeof(BITMAPINFOHEADER), kSize, -kSize, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
  void* bits = nullptr;
  const HBITMAP picture = CreateDIBSection(canvas, &about, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = SelectObject(canvas, picture);
  PatBlt(canvas, 0, 0, kSize, kSize, WHITENESS);
  const RECT bounds{0, 0, kSize, kSize};
  EXPECT_EQ(OleDraw(&control, DVASPECT_CONTENT, canvas, &bounds), S_OK);
  GdiFlush();
  int drawn = 0;
  for (int i = 0; i < kSize * kSize; ++i)
    drawn += (static_cast<const DWORD*>(bits)[i] & 0xFFFFFF) != 0xFFFFFF;
  DeleteObject(SelectObject(canvas, before));
  DeleteDC(canvas);
  return drawn;
}

class ContainerTest : public ComTest {
 protected:
  template <class Interface>
  ComPtr<Interface> As(REFIID id) {
    ComPtr<Interface> found;
    EXPECT_EQ(control_->QueryInterface(id, found.OutVoid()), S_OK);
    return found;
  }

  const Control control_ = CreateWith(u"note");
};

TEST_F(ContainerTest, AFormTakesTheControlDesignsAndRunsIt) {
  const auto site = ComPtr<Site>::Owning(new Site);
  const auto object = As<IOleObject>(IID_IOleObject);
  const auto persist = As<IPersistStreamInit>(IID_IPersistStreamInit);
  DWORD status = 0;
  EXPECT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
  EXPECT_TRUE(status & OLEMISC_INVISIBLEATRUNTIME);
  EXPECT_EQ(object->SetClientSite(site.Get()), S_OK);
  EXPECT_EQ(persist->InitNew(), S_OK);
  SIZEL size{};
  EXPECT_EQ(object->GetExtent(DVASPECT_CONTENT, &size), S_OK);
  EXPECT_GT(size.cx, 0);
  EXPECT_GT(DrawnPixels(*control_.Get()), 100);
  EXPECT_EQ(persist->IsDirty(), S_FALSE);

  site->running = true;
  As<IOleControl>(IID_IOleControl)->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE);
  EXPECT_EQ(DrawnPixels(*control_.Get()), 0);
  const RECT place{0, 0, 32, 32};
  for (const LONG verb : {OLEIVERB_INPLACEACTIVATE, OLEIVERB_SHOW, OLEIVERB_PRIMARY, OLEIVERB_HIDE})
    EXPECT_EQ(object->DoVerb(verb, nullptr, site.Get(), 0, GetDesktopWindow(), &place), S_OK);
  EXPECT_EQ(object->DoVerb(1, nullptr, site.Get(), 0, nullptr, &place), OLEOBJ_S_INVALIDVERB);
  EXPECT_EQ(control_->ShowMicroEdit(0), S_OK);
  EXPECT_EQ(NoteOf(control_), u"note");
  EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
  EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
}

TEST_F(ContainerTest, ADocumentSavesAndLoadsTheControl) {
  const auto saved = As<IPersistStreamInit>(IID_IPersistStreamInit);
  const auto site = ComPtr<Site>::Owning(new Site);
  ComPtr<IStream> stream;
  ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.Out()), S_OK);
  EXPECT_EQ(saved->Save(stream.Get(), TRUE), S_OK);
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  CLSID id;
  ASSERT_EQ(saved->GetClassID(&id), S_OK);
  ComPtr<IPersistStreamInit> loaded;
  ASSERT_EQ(
      CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IPersistStreamInit, loaded.OutVoid()),
      S_OK);
  EXPECT_EQ(loaded->Load(stream.Get()), S_OK);
  EXPECT_EQ(OleSetContainedObject(loaded.Get(), TRUE), S_OK);
  EXPECT_EQ(DrawnPixels(*loaded.Get()), 0) << "without a container it runs";
  LPOLESTR name = nullptr;
  EXPECT_EQ(As<IOleObject>(IID_IOleObject)->GetUserType(USERCLASSTYPE_FULL, &name), S_OK);
  EXPECT_EQ(std::wstring(name ? name : L""), kDescription);
  CoTaskMemFree(name);
}

TEST_F(ContainerTest, EveryInterfaceIsTheSameObject) {
  const auto identity = As<IUnknown>(IID_IUnknown);
  for (const IID* id : {&IID_IDispatch, &kInterfaceId, &IID_IOleObject, &IID_IOleControl,
                        &IID_IPersistStreamInit, &IID_IPersist, &IID_IViewObject, &IID_IViewObject2,
                        &IID_IProvideClassInfo, &IID_ISupportErrorInfo}) {
    ComPtr<IUnknown> back;
    EXPECT_EQ(As<IUnknown>(*id)->QueryInterface(IID_IUnknown, back.OutVoid()), S_OK);
    EXPECT_EQ(back.Get(), identity.Get());
  }
  ComPtr<IUnknown> none;
  EXPECT_EQ(control_->QueryInterface(IID_IOleInPlaceActiveObject, none.OutVoid()), E_NOINTERFACE);
}

}  // namespace
}  // namespace lumenote
