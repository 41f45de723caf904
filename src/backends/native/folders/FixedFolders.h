// Folders at fixed places, for sandboxes.
#pragma once
#include <memory>
#include <string>
#include <utility>

#include "platform/Folders.h"
#include "platform/ProgramFolders.h"

namespace lumenote {

class FixedFolders : public Folders {
 public:
  /// Drive paths; `temp` ends in a backslash.
  FixedFolders(std::u16string documents, std::u16string temp)
      : documents_(std::move(documents)), temp_(std::move(temp)) {}

  std::u16string Documents() const override { return documents_; }
  std::unique_ptr<TempFolder> MakeTemp() override { return std::make_unique<Temp>(temp_); }

 private:
  class Temp final : public TempFolder {
   public:
    explicit Temp(std::u16string path) : path_(std::move(path)) {}
    std::u16string Path() const override { return path_; }
    void Keep() override {}

   private:
    std::u16string path_;
  };

  std::u16string documents_;
  std::u16string temp_;
};

class FixedProgramFolders : public ProgramFolders {
 public:
  std::u16string Programs() const override { return u"C:\\Program Files"; }
  std::u16string Component() const override { return u"C:\\Lumenote"; }
};

}  // namespace lumenote
