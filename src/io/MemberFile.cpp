#include "io/MemberFile.h"

#include "base/Console.h"
#include "io/EntryName.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <new>
#include <system_error>

namespace talvesk {

int writeMember(const std::string& path, const char* what,
                const std::function<void(XmlWriter&)>& write) {
  const auto fail = [&] {
    console::logError("[ERROR] Error in opening " + path + ".");
    console::logError(std::string("[ERROR] ") + what + " cannot be stored on disk.");
    return 1;
  };
  std::ofstream stream(path, std::ios::binary);
  if (!stream.is_open()) return fail();
  XmlWriter writer(stream);
  write(writer);
  const bool complete = writer.finish();
  stream.close();
  return complete && stream.good() ? 0 : fail();
}

int readMember(const std::string& path, const char* what, std::uintmax_t largest, Message& why,
               const std::function<void(XmlReader&)>& read) {
  const auto fail = [&](const Message& reason) {
    why = joined(bareName(path), reason);
    console::logError(std::string("[ERROR] ") + what + " cannot be read from disk.");
    return 1;
  };
  std::ifstream stream(path, std::ios::binary);
  if (!stream.is_open()) {
    console::logError("[ERROR] Error in opening " + path + ".");
    return fail(Message::tr("it is missing"));
  }
  std::error_code error;
  if (std::filesystem::file_size(path, error) > largest || error) {
    return fail(Message::tr("it is too large"));
  }
  try {
    XmlReader reader(stream, "cereal");
    read(reader);
    return 0;
  } catch (const std::bad_alloc&) {
    return fail(Message::tr("there is not enough memory"));
  } catch (const XmlError& failure) {
    return fail(failure.reason);
  } catch (const std::exception& failure) {
    return fail(failure.what());
  }
}

}  // namespace talvesk
