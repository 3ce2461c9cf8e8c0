#pragma once

#include <cstddef>
#include <initializer_list>
#include <type_traits>
#include <utility>

namespace talvesk {

/// Values that stand one after the other in memory and belong to somebody else, to be read: what a
/// function takes that does not care who keeps them. Made of every container that has `data()` and
/// `size()`. Valid as long as the container and what it holds stay; an initializer list, until the
/// end of the statement.
template <typename T>
class Span {
 public:
  using value_type = T;
  using size_type = std::size_t;
  using const_reference = const T&;
  using const_iterator = const T*;
  using iterator = const_iterator;

  Span() = default;
  Span(const T* data, std::size_t size) : mData(data), mSize(size) {}
  Span(std::initializer_list<T> values) : Span(values.begin(), values.size()) {}
  template <typename Container, typename = std::enable_if_t<std::is_convertible_v<
                                    decltype(std::declval<const Container&>().data()), const T*>>>
  // NOLINTNEXTLINE(google-explicit-constructor): a container is a span of itself
  Span(const Container& container) : mData(container.data()), mSize(container.size()) {}

  const T* data() const { return mData; }
  std::size_t size() const { return mSize; }
  bool empty() const { return mSize == 0; }
  const T* begin() const { return mData; }
  const T* end() const { return mData + mSize; }
  const T& operator[](std::size_t i) const { return mData[i]; }
  const T& front() const { return mData[0]; }
  const T& back() const { return mData[mSize - 1]; }

 private:
  const T* mData = nullptr;
  std::size_t mSize = 0;
};

}  // namespace talvesk
