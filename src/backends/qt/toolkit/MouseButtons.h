// Converts between Qt's mouse buttons and the forms'.
#pragma once
#include <Qt>
#include <QtGlobal>

#include "forms/Control.h"

namespace lumenote {

constexpr MouseButton ButtonOf(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return MouseButton::Left;
    case Qt::RightButton:
      return MouseButton::Right;
    case Qt::MiddleButton:
      return MouseButton::Middle;
    default:
      return MouseButton::None;
  }
}

constexpr Qt::MouseButton ButtonOf(MouseButton button) {
  switch (button) {
    case MouseButton::Left:
      return Qt::LeftButton;
    case MouseButton::Right:
      return Qt::RightButton;
    case MouseButton::Middle:
      return Qt::MiddleButton;
    case MouseButton::None:
      break;
  }
  return Qt::NoButton;
}

}  // namespace lumenote
