#include "base/Console.h"

#include <iostream>

namespace talvesk::console {
namespace {

struct Streams {
  std::ostream* out = &std::cout;
  std::ostream* error = &std::cerr;
};

Streams& streams() {
  static Streams instance;
  return instance;
}

}  // namespace

std::ostream& out() {
  return *streams().out;
}
std::ostream& error() {
  return *streams().error;
}
void setOut(std::ostream& stream) {
  streams().out = &stream;
}
void setError(std::ostream& stream) {
  streams().error = &stream;
}

std::ostream& nowhere() {
  static std::ostream stream(nullptr);
  return stream;
}

}  // namespace talvesk::console
