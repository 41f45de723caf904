#include "forms/values/StatusSign.h"

namespace lumenote {

namespace {

constexpr Point kCheckMark[] = {{3, 8.5F}, {6.5F, 12}, {13, 4}};
constexpr Point kPencil[] = {{3.5F, 10}, {10.5F, 3},    {13, 5.5F}, {6, 12.5F},
                             {3.5F, 10}, {2.5F, 13.5F}, {6, 12.5F}};

}  // namespace

std::span<const Point> StrokeOf(StatusSign sign) {
  switch (sign) {
    case StatusSign::Saved:
      return kCheckMark;
    case StatusSign::Modified:
      return kPencil;
    case StatusSign::None:
      break;
  }
  return {};
}

}  // namespace lumenote
