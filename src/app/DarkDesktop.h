#pragma once

#include <QProxyStyle>

class QPalette;

namespace talvesk {

/// Whether windows of these colours are dark, with light texts.
bool isDark(const QPalette& palette);

/// Draws boxes and circles to tick so that they are seen on dark desktops, too. The style of Qt's
/// own outlines them in a darker shade of the window, which there is that of a table.
class BoxOutlines : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
};

/// Gives the program that style where it has the one of Qt's own. Other styles draw well.
void outlineBoxes();

}  // namespace talvesk
