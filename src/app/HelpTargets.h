#pragma once

#include <QString>
#include <QUrl>
#include <functional>

class QObject;

namespace talvesk {

/// The help pages on the web. The one place that names them.
inline constexpr char kOnlineHelpAddress[] = "https://talvesk.example/help/";

/// A page of the guide that came with the program, in the language (a locale code) where there is
/// one, else in English: beside the installed program, or in the source tree that it was built in.
/// Empty when there is no guide.
/// \param page of the guide; where no language has one of that name it is the first one
QString userGuidePath(const QString& language, const QString& page = QStringLiteral("index.html"));

/// Tells `found` whether the host of an address can be reached by name, at once or within the
/// time that the system gives the look-up, unless `receiver` is gone by then.
void whenHostIsKnown(const QUrl& address, QObject* receiver,
                     const std::function<void(bool)>& found);

}  // namespace talvesk
