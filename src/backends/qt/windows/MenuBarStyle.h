// A low menu bar: the desktop's style with less padding.
#pragma once
#include <QProxyStyle>

namespace lumenote {

/// A menu bar of 20 pixels has no room for a style's padding around items; the spaces in the
/// captions are the only separation that the design wants.
class MenuBarStyle : public QProxyStyle {
 public:
  MenuBarStyle();

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
};

}  // namespace lumenote
