#include "figures/FigureOutput.h"

#include "base/AtomicFile.h"

#include <QApplication>
#include <QByteArray>
#include <algorithm>
#include <string_view>

namespace talvesk {

Status checkApplication(const std::string& what) {
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) return {};
  return Status::failure(
      Message::tr("%1 cannot be drawn before the application object exists.").arg(what));
}

Status writeBytes(const std::string& path, const QByteArray& bytes) {
  return writeFileAtomically(
      path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

Status writeFigure(const std::string& path,
                   const std::function<Status(FigureFormat, QByteArray&)>& render) {
  FigureFormat format{};
  QByteArray bytes;
  Status status = figureFormatOf(path, format);
  if (status.ok()) status = render(format, bytes);
  return status.ok() ? writeBytes(path, bytes) : status;
}

std::string withZeros(std::size_t number, std::size_t count) {
  const std::size_t width = std::max<std::size_t>(std::to_string(count).size(), 2);
  const std::string text = std::to_string(number);
  return std::string(width - std::min(width, text.size()), '0') + text;
}

}  // namespace talvesk
