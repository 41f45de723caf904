// The container's side of a control, which several of its parts ask.
#pragma once
#include "../support/ComPtr.h"
#include "../support/Ole.h"

namespace lumenote {

class ClientSite {
 protected:
  /// Null until the container sets it.
  const ComPtr<IOleClientSite>& Site() const { return site_; }
  void Site(IOleClientSite* site) { site_ = ComPtr<IOleClientSite>(site); }

  /// Whether the container says that its user is designing a form. One that says nothing runs.
  bool Designing() const;

 private:
  ComPtr<IOleClientSite> site_;
};

}  // namespace lumenote
