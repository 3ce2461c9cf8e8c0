#pragma once

#include "tomo/fitted/MemberFits.h"

#include <memory>
#include <mutex>
#include <vector>

#include <pybind11/pybind11.h>

namespace talvesk::python {

/// What fits members, for any number of threads of the interpreter, with tracers that are kept from
/// one member to the next.
class FitsAtWork {
 public:
  explicit FitsAtWork(std::shared_ptr<const MemberFits> fits) : mFits(std::move(fits)) {}

  const MemberFits& fits() const { return *mFits; }
  EnsembleMember fit(std::size_t number);  ///< needs no lock of the interpreter; raises an Error

 private:
  std::unique_ptr<RayTracer> takeTracer();

  const std::shared_ptr<const MemberFits> mFits;
  std::mutex mMutex;
  std::vector<std::unique_ptr<RayTracer>> mIdle;
};

/// The class of it, which can be pickled: whatever a member is a function of goes along, and no
/// file.
void bindMemberFits(pybind11::module_& module);

}  // namespace talvesk::python
