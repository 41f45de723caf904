// The user's folders as drive paths.
#include "backends/native/folders/NativeFolders.h"

#include "backends/native/folders/UserFolders.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

std::u16string DrivePathOrNone(const DrivePaths& drives, const std::string& native) {
  std::u16string path;
  IgnoringErrors([&] { path = drives.ToDrivePath(native); });
  return path;
}

}  // namespace

class NativeFolders::Temp final : public TempFolder {
 public:
  explicit Temp(NativeFolders& owner) : owner_(owner) {}
  Temp(const Temp&) = delete;
  Temp& operator=(const Temp&) = delete;
  ~Temp() override { owner_.TakeBack(std::move(folder_)); }

  std::u16string Path() const override {
    if (!folder_ || folder_->Path().empty()) folder_ = std::make_unique<TemporaryFolder>();
    const std::u16string path = DrivePathOrNone(owner_.drives_, folder_->Path());
    return path.empty() ? path : path + u"\\";
  }
  void Keep() override {
    if (folder_) folder_->Keep();
  }

 private:
  NativeFolders& owner_;
  mutable std::unique_ptr<TemporaryFolder> folder_;
};

NativeFolders::~NativeFolders() {
  if (left_.empty() || !inUse_()) return;
  for (const std::unique_ptr<TemporaryFolder>& folder : left_) folder->Keep();
}

std::u16string NativeFolders::Documents() const {
  return DrivePathOrNone(drives_, DocumentsFolder());
}

std::unique_ptr<TempFolder> NativeFolders::MakeTemp() { return std::make_unique<Temp>(*this); }

void NativeFolders::TakeBack(std::unique_ptr<TemporaryFolder> folder) {
  if (folder && inUse_()) left_.push_back(std::move(folder));
}

}  // namespace lumenote
