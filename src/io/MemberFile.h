#pragma once

#include "base/Message.h"
#include "io/XmlReader.h"
#include "io/XmlWriter.h"

#include <cstdint>
#include <functional>
#include <string>

namespace talvesk {

// A member of a project as a file, on its way into the archive or out of it.

/// The least size that no member has. What is read takes a few times its member in memory, so this
/// also keeps an archive of a few megabytes from filling the machine.
inline constexpr std::uintmax_t kLargestMember = std::uintmax_t{1} << 29;

/// 0, or 1 after telling the console's error stream.
/// \param what the member, as its messages call it
int writeMember(const std::string& path, const char* what,
                const std::function<void(XmlWriter&)>& write);

/// 0, or 1 after telling the console's error stream; `why` then names the member.
/// \param read may throw any exception, XmlError with a reason for users
int readMember(const std::string& path, const char* what, std::uintmax_t largest, Message& why,
               const std::function<void(XmlReader&)>& read);

}  // namespace talvesk
