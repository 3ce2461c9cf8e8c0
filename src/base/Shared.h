#pragma once

#include <atomic>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

namespace talvesk {

/// A value that its copies share until one of them is edited: copying costs a pointer. Read it
/// through `*` and `->`; edit() is the one way to write. Copies may be read and edited on different
/// threads, one and the same object may not.
///
/// A header needs T declared only; whoever creates, reads or edits one needs it complete.
template <typename T>
class Shared {
 public:
  Shared() : mValue(none()) {}
  // NOLINTNEXTLINE(google-explicit-constructor): a value is what it is, shared or not
  Shared(T value) : mValue(std::make_shared<T>(std::move(value))) {}
  Shared(const Shared&) noexcept = default;
  Shared& operator=(const Shared&) noexcept = default;
  /// The other is as new then.
  Shared(Shared&& other) noexcept : mValue(std::exchange(other.mValue, none())) {}
  Shared& operator=(Shared&& other) noexcept {
    mValue.swap(other.mValue);
    if (this != &other) other.mValue = none();
    return *this;
  }
  ~Shared() = default;

  const T& operator*() const { return *mValue; }
  const T* operator->() const { return mValue.get(); }
  // NOLINTNEXTLINE(google-explicit-constructor): functions take values, shared or not
  operator const T&() const { return *mValue; }

  /// To be written; copied before when somebody else has it, too. What was read before the call may
  /// belong to the others now. Keep the reference no longer than until this object is copied.
  T& edit() {
    if (mValue.use_count() != 1) {
      mValue = std::make_shared<T>(std::as_const(*mValue));
    } else {
      // What another thread read before it let go of its copy was read before this is written.
      std::atomic_thread_fence(std::memory_order_acquire);
    }
    return *mValue;
  }

  /// Whether both are one value in memory. Equal values need not be.
  bool isSharedWith(const Shared& other) const { return mValue == other.mValue; }

 private:
  /// What all are that nobody has written to yet; never written, for more than one have it.
  static const std::shared_ptr<T>& none() {
    static const std::shared_ptr<T> value = std::make_shared<T>();
    return value;
  }

  std::shared_ptr<T> mValue;
};

/// A list that its copies share until one of them is edited. Reads like a constant std::vector.
template <typename T>
class SharedVector : public Shared<std::vector<T>> {
 public:
  using value_type = T;
  using size_type = std::size_t;
  using const_reference = const T&;
  using const_iterator = typename std::vector<T>::const_iterator;
  using iterator = const_iterator;

  using Shared<std::vector<T>>::Shared;
  SharedVector() = default;
  SharedVector(std::initializer_list<T> values) : Shared<std::vector<T>>(std::vector<T>(values)) {}

  const T& operator[](std::size_t i) const { return (**this)[i]; }
  const T& at(std::size_t i) const { return (**this).at(i); }
  const T& front() const { return (**this).front(); }
  const T& back() const { return (**this).back(); }
  const T* data() const { return (**this).data(); }
  std::size_t size() const { return (**this).size(); }
  bool empty() const { return (**this).empty(); }
  const_iterator begin() const { return (**this).begin(); }
  const_iterator end() const { return (**this).end(); }

  friend bool operator==(const SharedVector& a, const SharedVector& b) {
    return a.isSharedWith(b) || *a == *b;
  }
  friend bool operator!=(const SharedVector& a, const SharedVector& b) { return !(a == b); }
  friend bool operator==(const SharedVector& a, const std::vector<T>& b) { return *a == b; }
  friend bool operator==(const std::vector<T>& a, const SharedVector& b) { return a == *b; }
};

}  // namespace talvesk
