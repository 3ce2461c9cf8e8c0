#include "figures/ZipBytes.h"

#include <memory>

#include <zip.h>

namespace talvesk {
namespace {

Status broken(const Message& reason) {
  return Status::failure(Message::tr("The document cannot be packed: %1").arg(reason));
}

Status add(zip_t* archive, const ZipMember& member) {
  zip_source_t* source = zip_source_buffer(archive, member.bytes.constData(),
                                           static_cast<zip_uint64_t>(member.bytes.size()), 0);
  if (source == nullptr) return broken(zip_strerror(archive));
  const zip_int64_t index = zip_file_add(archive, member.name.c_str(), source, ZIP_FL_ENC_UTF_8);
  if (index < 0) {
    zip_source_free(source);
    return broken(zip_strerror(archive));
  }
  const auto place = static_cast<zip_uint64_t>(index);
  const int method = member.compress ? ZIP_CM_DEFLATE : ZIP_CM_STORE;
  if (zip_set_file_compression(archive, place, method, 0) != 0) {
    return broken(zip_strerror(archive));
  }
  return {};
}

}  // namespace

Status zipBytes(const std::vector<ZipMember>& members, QByteArray& bytes) {
  zip_error_t error;
  zip_error_init(&error);
  const std::unique_ptr<zip_error_t, decltype(&zip_error_fini)> ending(&error, &zip_error_fini);
  // The archive is put together in this source, which outlives it by one more keep.
  const std::unique_ptr<zip_source_t, decltype(&zip_source_free)> source(
      zip_source_buffer_create(nullptr, 0, 0, &error), &zip_source_free);
  if (source == nullptr) return broken(zip_error_strerror(&error));
  zip_t* archive = zip_open_from_source(source.get(), ZIP_CREATE | ZIP_TRUNCATE, &error);
  if (archive == nullptr) return broken(zip_error_strerror(&error));
  zip_source_keep(source.get());
  Status status;
  for (const ZipMember& member : members) {
    status = add(archive, member);
    if (!status.ok()) break;
  }
  if (status.ok() && zip_close(archive) != 0) status = broken(zip_strerror(archive));
  if (!status.ok()) {
    zip_discard(archive);
    return status;
  }
  zip_stat_t facts;
  zip_stat_init(&facts);
  if (zip_source_stat(source.get(), &facts) != 0 || zip_source_open(source.get()) != 0) {
    return broken(zip_error_strerror(zip_source_error(source.get())));
  }
  bytes.resize(static_cast<int>(facts.size));
  const zip_int64_t got = zip_source_read(source.get(), bytes.data(), facts.size);
  zip_source_close(source.get());
  if (got != bytes.size()) return broken(Message::tr("its bytes cannot be read back"));
  return {};
}

}  // namespace talvesk
