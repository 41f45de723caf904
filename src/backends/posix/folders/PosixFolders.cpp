// The user's folders as drive paths.
#include "backends/posix/folders/PosixFolders.h"

#include "backends/posix/folders/UserFolders.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

std::u16string DrivePathOrNone(const DrivePaths& drives, const std::string& native) {
  std::u16string path;
  IgnoringErrors([&] { path = drives.ToDrivePath(native); });
  return path;
}

}  // namespace

class PosixFolders::Temp final : public TempFolder {
 public:
  explicit Temp(PosixFolders& owner) : owner_(owner) {}
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
  PosixFolders& owner_;
  mutable std::unique_ptr<TemporaryFolder> folder_;
};

PosixFolders::~PosixFolders() {
  if (left_.empty() || !inUse_()) return;
  for (const std::unique_ptr<TemporaryFolder>& folder : left_) folder->Keep();
}

std::u16string PosixFolders::Documents() const {
  return DrivePathOrNone(drives_, DocumentsFolder());
}

std::unique_ptr<TempFolder> PosixFolders::MakeTemp() { return std::make_unique<Temp>(*this); }

void PosixFolders::TakeBack(std::unique_ptr<TemporaryFolder> folder) {
  if (folder && inUse_()) left_.push_back(std::move(folder));
}

}  // namespace lumenote
