#include "backends/qt/windows/MenuBarStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

#include "backends/qt/toolkit/Units.h"

namespace lumenote {

namespace {
constexpr int kPadding = 4;
}

MenuBarStyle::MenuBarStyle() : QProxyStyle(QStyleFactory::create(QApplication::style()->name())) {}

int MenuBarStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
  switch (metric) {
    case PM_MenuBarItemSpacing:
    case PM_MenuBarHMargin:
    case PM_MenuBarVMargin:
    case PM_MenuBarPanelWidth:
      return 0;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

QSize MenuBarStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& contents, const QWidget* widget) const {
  if (type == CT_MenuBarItem) return {contents.width() + 2 * kPadding, kBarHeight};
  return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

void MenuBarStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  if (element == CE_MenuBarEmptyArea) {
    painter->fillRect(option->rect, option->palette.window());
    return;
  }
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (element != CE_MenuBarItem || !item) {
    QProxyStyle::drawControl(element, option, painter, widget);
    return;
  }
  const bool lit = (item->state & State_Selected) && (item->state & State_Enabled);
  painter->fillRect(item->rect, lit ? item->palette.highlight() : item->palette.window());
  drawItemText(painter, item->rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
               item->palette, item->state & State_Enabled, item->text,
               lit ? QPalette::HighlightedText : QPalette::WindowText);
}

}  // namespace lumenote
