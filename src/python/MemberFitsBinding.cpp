#include "python/MemberFitsBinding.h"

#include "numerics/Splines.h"
#include "python/Error.h"
#include "python/Values.h"

#include <optional>
#include <utility>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace talvesk::python {
namespace {

// Lists of records travel as one array per field.

template <typename T>
py::array_t<T> packed(const std::vector<T>& values) {
  return py::array_t<T>(static_cast<py::ssize_t>(values.size()), values.data());
}

template <typename Record, typename T>
py::array_t<T> column(const std::vector<Record>& records, T Record::*field) {
  py::array_t<T> array(static_cast<py::ssize_t>(records.size()));
  T* to = array.mutable_data();
  for (const Record& record : records) *to++ = record.*field;
  return array;
}

template <typename T>
std::vector<T> unpacked(const py::handle& value) {
  const auto array = py::array_t<T, py::array::c_style | py::array::forcecast>::ensure(value);
  return {array.data(), array.data() + array.size()};
}

template <typename Record, typename T>
void fill(std::vector<Record>& records, T Record::*field, const py::handle& value) {
  const std::vector<T> values = unpacked<T>(value);
  records.resize(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) records[i].*field = values[i];
}

py::tuple packedGrid(const GridGeometry& geometry) {
  return py::make_tuple(geometry.righe(), geometry.col(), geometry.nV(), geometry.aLato(),
                        packed(geometry.surfaceProfile()));
}

/// The surface between its samples is asked for nowhere, so that a straight line will do; one
/// sample more than there are keeps the last of them out of a sum.
std::shared_ptr<const GridGeometry> unpackedGrid(const py::tuple& state) {
  const GridSize size{state[0].cast<std::uint32_t>(), state[1].cast<std::uint32_t>(),
                      state[2].cast<std::uint32_t>(), state[3].cast<double>()};
  std::vector<double> heights = unpacked<double>(state[4]);
  std::vector<double> places;
  for (std::size_t i = 0; i <= heights.size(); ++i) {
    places.push_back(static_cast<double>(i) * size.aLato / (size.nV - 1));
  }
  heights.push_back(heights.back());
  Splines::LinearSpline surface;
  surface.build(places, heights);
  return std::make_shared<const GridGeometry>(size, surface);
}

py::tuple packedData(const FitData& data) {
  std::vector<double> receivers;
  std::vector<std::size_t> counts;
  for (const FitShot& shot : data.shots) {
    receivers.insert(receivers.end(), shot.receivers.begin(), shot.receivers.end());
    counts.push_back(shot.receivers.size());
  }
  return py::make_tuple(column(data.picks, &FitPick::record),
                        column(data.picks, &FitPick::receiver), column(data.picks, &FitPick::time),
                        column(data.picks, &FitPick::sigma), column(data.shots, &FitShot::record),
                        column(data.shots, &FitShot::source),
                        column(data.shots, &FitShot::firstPick), packed(counts), packed(receivers));
}

FitData unpackedData(const py::tuple& state) {
  FitData data;
  fill(data.picks, &FitPick::record, state[0]);
  fill(data.picks, &FitPick::receiver, state[1]);
  fill(data.picks, &FitPick::time, state[2]);
  fill(data.picks, &FitPick::sigma, state[3]);
  fill(data.shots, &FitShot::record, state[4]);
  fill(data.shots, &FitShot::source, state[5]);
  fill(data.shots, &FitShot::firstPick, state[6]);
  const auto counts = unpacked<std::size_t>(state[7]);
  const std::vector<double> receivers = unpacked<double>(state[8]);
  auto from = receivers.begin();
  for (std::size_t s = 0; s < data.shots.size(); ++s) {
    const auto to = from + static_cast<std::ptrdiff_t>(counts[s]);
    data.shots[s].receivers.assign(from, to);
    from = to;
  }
  return data;
}

py::object packedKnown(const KnownCells* known) {
  if (known == nullptr) return py::none();
  using Pull = KnownCells::Pull;
  using Fixed = KnownCells::Fixed;
  using Condition = KnownCells::Condition;
  std::vector<int> sides;
  for (const Pull& pull : known->pulls) sides.push_back(static_cast<int>(pull.side));
  return py::make_tuple(
      column(known->pulls, &Pull::cell), column(known->pulls, &Pull::logSlowness),
      column(known->pulls, &Pull::sigma), packed(sides), column(known->pulls, &Pull::condition),
      column(known->pulls, &Pull::reach), column(known->fixed, &Fixed::cell),
      column(known->fixed, &Fixed::slowness), packed(known->loose),
      column(known->conditions, &Condition::isovalue), column(known->conditions, &Condition::depth),
      column(known->conditions, &Condition::error), column(known->conditions, &Condition::column));
}

std::shared_ptr<const KnownCells> unpackedKnown(const py::handle& value) {
  if (value.is_none()) return nullptr;
  using Pull = KnownCells::Pull;
  using Fixed = KnownCells::Fixed;
  using Condition = KnownCells::Condition;
  const auto state = value.cast<py::tuple>();
  auto known = std::make_shared<KnownCells>();
  fill(known->pulls, &Pull::cell, state[0]);
  fill(known->pulls, &Pull::logSlowness, state[1]);
  fill(known->pulls, &Pull::sigma, state[2]);
  const auto sides = unpacked<int>(state[3]);
  for (std::size_t i = 0; i < sides.size(); ++i) {
    known->pulls[i].side = static_cast<KnownCells::Side>(sides[i]);
  }
  fill(known->pulls, &Pull::condition, state[4]);
  fill(known->pulls, &Pull::reach, state[5]);
  fill(known->fixed, &Fixed::cell, state[6]);
  fill(known->fixed, &Fixed::slowness, state[7]);
  known->loose = unpacked<std::uint8_t>(state[8]);
  fill(known->conditions, &Condition::isovalue, state[9]);
  fill(known->conditions, &Condition::depth, state[10]);
  fill(known->conditions, &Condition::error, state[11]);
  fill(known->conditions, &Condition::column, state[12]);
  return known;
}

py::tuple packedOptions(const EnsembleOptions& options) {
  const FittedOptions& fit = options.fit;
  return py::make_tuple(fit.minVelocity, fit.maxVelocity, fit.triggerError, options.seed,
                        packed(options.vary.smoothing), packedKnown(fit.known.get()));
}

/// Without the section, the isovalues and the manners, which members do not ask for.
EnsembleOptions unpackedOptions(const py::tuple& state) {
  EnsembleOptions options;
  options.fit.minVelocity = state[0].cast<double>();
  options.fit.maxVelocity = state[1].cast<double>();
  options.fit.triggerError = state[2].cast<double>();
  options.seed = state[3].cast<std::uint64_t>();
  options.vary.smoothing = unpacked<double>(state[4]);
  options.fit.known = unpackedKnown(state[5]);
  return options;
}

py::tuple packedStart(const MemberStart& start) {
  return py::make_tuple(start.model, start.layered, start.manner.robust, start.manner.blocky,
                        start.manner.statics, packed(start.reference), packed(start.section),
                        start.lambda);
}

MemberStart unpackedStart(const py::tuple& state) {
  return {state[0].cast<std::size_t>(),
          state[1].cast<bool>(),
          {state[2].cast<bool>(), state[3].cast<bool>(), state[4].cast<bool>()},
          unpacked<double>(state[5]),
          unpacked<double>(state[6]),
          state[7].cast<double>()};
}

py::tuple pickled(const FitsAtWork& work) {
  const MemberFits& fits = work.fits();
  py::list starts;
  for (const MemberStart& start : fits.starts()) starts.append(packedStart(start));
  return py::make_tuple(packedGrid(*fits.geometry()), packedData(fits.data()),
                        packedOptions(fits.options()), starts);
}

std::shared_ptr<FitsAtWork> unpickled(const py::tuple& state) {
  std::vector<MemberStart> starts;
  for (const py::handle& start : state[3]) starts.push_back(unpackedStart(start.cast<py::tuple>()));
  return std::make_shared<FitsAtWork>(std::make_shared<const MemberFits>(
      unpackedGrid(state[0].cast<py::tuple>()), unpackedData(state[1].cast<py::tuple>()),
      unpackedOptions(state[2].cast<py::tuple>()), std::move(starts)));
}

py::tuple fitMember(FitsAtWork& work, std::size_t number) {
  EnsembleMember member;
  {
    const py::gil_scoped_release free;
    member = work.fit(number);
  }
  py::array_t<bool> touched(static_cast<py::ssize_t>(member.touched.size()));
  std::copy(member.touched.begin(), member.touched.end(), touched.mutable_data());
  return py::make_tuple(member.number, member.counts, arrayOf(member.slownesses), touched);
}

}  // namespace

std::unique_ptr<RayTracer> FitsAtWork::takeTracer() {
  {
    const std::lock_guard<std::mutex> lock(mMutex);
    if (!mIdle.empty()) {
      std::unique_ptr<RayTracer> tracer = std::move(mIdle.back());
      mIdle.pop_back();
      return tracer;
    }
  }
  return mFits->newTracer();
}

EnsembleMember FitsAtWork::fit(std::size_t number) {
  std::unique_ptr<RayTracer> tracer = takeTracer();
  std::optional<EnsembleMember> member;
  const Status status = mFits->fit(number, *tracer, {}, member);
  if (!status.ok() || !member) throw Error(status.message());
  const std::lock_guard<std::mutex> lock(mMutex);
  mIdle.push_back(std::move(tracer));
  return *std::move(member);
}

void bindMemberFits(py::module_& module) {
  py::class_<FitsAtWork, std::shared_ptr<FitsAtWork>>(
      module, "_MemberFits", "Fits members of an ensemble. Can be pickled; threads may share one.")
      .def("fit", fitMember, py::arg("number"),
           "Member number, whether it counts, its slownesses (s/m) and which cells have rays.")
      .def(py::pickle([](const FitsAtWork& work) { return pickled(work); },
                      [](const py::tuple& state) { return unpickled(state); }));
}

}  // namespace talvesk::python
