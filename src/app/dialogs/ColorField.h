#pragma once

#include <QToolButton>
#include <cstdint>

namespace talvesk {

/// A button that shows a colour and asks for another.
class ColorField : public QToolButton {
  Q_OBJECT

 public:
  /// \param color 0xRRGGBB
  explicit ColorField(std::uint32_t color, QWidget* parent = nullptr);

  std::uint32_t color() const { return mColor; }
  void setColor(std::uint32_t color);

 signals:
  void changed();

 private:
  void ask();

  std::uint32_t mColor = 0;
};

}  // namespace talvesk
