#include "io/project/ZipSink.h"

#include "base/FileReplacement.h"

#include <cerrno>
#include <memory>

#include <zip.h>

namespace talvesk {
namespace {

struct Sink {
  explicit Sink(FileReplacement& target) : file(target) { zip_error_init(&error); }
  ~Sink() { zip_error_fini(&error); }
  Sink(const Sink&) = delete;
  Sink& operator=(const Sink&) = delete;

  zip_int64_t result(bool done, int code) {
    if (!done) zip_error_set(&error, code, errno);
    return done ? 0 : -1;
  }

  FileReplacement& file;
  zip_error_t error;
};

/// Where the library wants to go from where the archive stands.
zip_int64_t seek(Sink& sink, void* data, zip_uint64_t length) {
  const auto* wanted = ZIP_SOURCE_GET_ARGS(zip_source_args_seek, data, length, &sink.error);
  if (wanted == nullptr) return -1;
  zip_int64_t from = 0;
  if (wanted->whence == SEEK_CUR) from = sink.file.position();
  const bool known = wanted->whence != SEEK_END && from >= 0;
  return sink.result(known && sink.file.seek(from + wanted->offset), ZIP_ER_SEEK);
}

/// What the library asks of a source that it writes to and never reads.
zip_int64_t serve(void* state, void* data, zip_uint64_t length, zip_source_cmd_t command) {
  Sink& sink = *static_cast<Sink*>(state);
  switch (command) {
    case ZIP_SOURCE_SUPPORTS:
      return ZIP_SOURCE_SUPPORTS_WRITABLE;
    case ZIP_SOURCE_STAT:  // there is no archive yet
      zip_error_set(&sink.error, ZIP_ER_READ, ENOENT);
      return -1;
    case ZIP_SOURCE_BEGIN_WRITE:
    case ZIP_SOURCE_COMMIT_WRITE:
    case ZIP_SOURCE_ROLLBACK_WRITE:
      return 0;  // the replacement itself is completed or forgotten
    case ZIP_SOURCE_WRITE:
      return sink.result(sink.file.write(data, length), ZIP_ER_WRITE) < 0
                 ? -1
                 : static_cast<zip_int64_t>(length);
    case ZIP_SOURCE_SEEK_WRITE:
      return seek(sink, data, length);
    case ZIP_SOURCE_TELL_WRITE:
      return sink.file.position();
    case ZIP_SOURCE_ERROR:
      return zip_error_to_data(&sink.error, data, length);
    case ZIP_SOURCE_FREE:
      delete &sink;
      return 0;
    default:
      zip_error_set(&sink.error, ZIP_ER_OPNOTSUPP, 0);
      return -1;
  }
}

}  // namespace

zip_source* zipSinkInto(FileReplacement& file, zip_error* error) {
  auto sink = std::make_unique<Sink>(file);
  zip_source* source = zip_source_function_create(serve, sink.get(), error);
  if (source != nullptr) sink.release();
  return source;
}

}  // namespace talvesk
