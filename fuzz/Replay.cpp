// Runs a fuzz target on the files of a folder, with any compiler and without a fuzzer:
//   replay_seg2 FOLDER
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <system_error>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: " << arguments[0] << " FOLDER" << std::endl;
    return 2;
  }
  std::error_code error;
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(arguments[1], error)) {
    std::ifstream stream(entry.path(), std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(stream), {});
    if (!stream) {
      std::cerr << "cannot read " << entry.path() << std::endl;
      return 1;
    }
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++files;
  }
  std::cout << files << " files of " << arguments[1] << std::endl;
  return files > 0 ? 0 : 1;
}
