#include "io/EnsembleFile.h"
#include "python/Bindings.h"
#include "python/LongWork.h"
#include "python/MemberFitsBinding.h"
#include "python/SureSection.h"
#include "session/TableRules.h"
#include "tomo/ForwardPass.h"
#include "tomo/fitted/CertaintyRun.h"

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>

namespace py = pybind11;

namespace talvesk::python {
namespace {

/// The values that a setting is to take, one at least.
template <typename Value>
std::vector<Value> listOf(const std::string& name, const py::handle& values) {
  try {
    auto list = values.cast<std::vector<Value>>();
    if (!list.empty()) return list;
  } catch (const py::cast_error&) {
    // Told below: what it says itself is of C++.
  }
  const char* kind = std::is_same_v<Value, bool> ? "True or False" : "numbers";
  throw Error("vary: '" + name + "' must be a list of " + kind + ", one at least");
}

EnsembleVariation variationOf(const py::dict& vary) {
  EnsembleVariation variation;
  for (const auto& [key, values] : vary) {
    const std::string name = py::str(key);
    if (name == "smoothing") {
      variation.smoothing = listOf<double>(name, values);
    } else if (name == "robust") {
      variation.robust = listOf<bool>(name, values);
    } else if (name == "blocky") {
      variation.blocky = listOf<bool>(name, values);
    } else if (name == "statics") {
      variation.statics = listOf<bool>(name, values);
    } else {
      throw Error("'" + name + "' is none of smoothing, blocky, robust, statics");
    }
  }
  for (const double factor : variation.smoothing) {
    if (!(factor >= 0.001 && factor <= 1000.0)) throw Error("smoothing must be 0.001 to 1000");
  }
  return variation;
}

/// An ensemble on its way, with the file that its finished members are kept in.
class EnsembleAtWork {
 public:
  EnsembleAtWork(const Survey& survey, int members, std::uint64_t seed,
                 std::vector<double> isovalues, const py::dict& vary, const std::string& keep)
      : mSurvey(survey), mSettings(settingsOf(survey, members)), mKeeper({}, 0) {
    raiseUnless(checkTraceable(survey.document));
    mSettings.ensemble.seed = seed;
    mSettings.ensemble.isovalues = checkedIsovalues(std::move(isovalues));
    mSettings.ensemble.vary = variationOf(vary);
    mEnsemble = resumedEnsemble(survey.document, mSettings);
    mKeeper = EnsembleKeeper(keep, ensembleKey(survey.document, mSettings));
    raiseUnless(mKeeper.load(*mEnsemble));
  }

  /// Goes on until all is done, or only until members can be fitted elsewhere.
  void run(unsigned threads, bool models, const py::object& progress) {
    mSettings.threads = threads > 0 ? threads : searchThreads();
    runBeside([&](const Tell& teller, const Stopped& stopped) {
      const auto tell = [&](const EnsembleProgress& state) {
        mKeeper.keep(*mEnsemble);
        // Only looked at, and so may be without the interpreter's lock.
        if (!progress.is_none()) teller([&progress, state] { progress(valuesOf(state)); });
      };
      const auto goOn = [&] { return !stopped(); };
      const auto work =
          models
              ? &Ensemble::prepare
              : static_cast<Status (Ensemble::*)(MemberRange, unsigned, const Ensemble::Progress&,
                                                 const Ensemble::GoOn&)>(&Ensemble::run);
      raiseUnless((mEnsemble.get()->*work)(mSettings.range(), mSettings.threads, tell, goOn));
      if (!models) save();
    });
  }

  void take(std::size_t number, bool counts, const GivenArray& slownesses,
            const py::array_t<bool>& touched) {
    EnsembleMember member{number, counts, {}, {}};
    member.slownesses.assign(slownesses.data(), slownesses.data() + slownesses.size());
    member.touched.assign(touched.data(), touched.data() + touched.size());
    mEnsemble->take(member);
    mKeeper.keep(*mEnsemble);
  }

  void save() {
    if (mEnsemble->done() > 0) raiseUnless(mKeeper.save(*mEnsemble));
  }

  py::dict progress() const {
    EnsembleProgress state;
    state.models = state.ofModels = static_cast<int>(mEnsemble->models().size());
    state.members = mEnsemble->doneOf(mSettings.range());
    state.ofMembers = mSettings.members;
    state.leftOut = mEnsemble->leftOut();
    return valuesOf(state);
  }

  std::shared_ptr<FitsAtWork> fits() const {
    if (mEnsemble->fits() == nullptr) throw Error("the models are not fitted yet");
    return std::make_shared<FitsAtWork>(mEnsemble->fits());
  }
  std::vector<std::size_t> open() const { return mEnsemble->openOf(mSettings.range()); }

  SureSection certainty() const {
    if (mEnsemble->counts().members() == 0) {
      throw Error(
          "None of the members explains the picks to within their errors; how sure the "
          "section is stays unknown.");
    }
    SureSection sure = {mSurvey};
    raiseUnless(editSurvey(Edit::kCertainty, sure.survey, [&](Survey& next) {
      next.document.result.edit().certainty = gathered(*mEnsemble, next.document, mSettings);
      return Status();
    }));
    return sure;
  }

 private:
  static CertaintySettings settingsOf(const Survey& survey, int members) {
    if (members < 1 || members > Ensemble::kMostMembers) {
      throw Error("members must be 1 to " + std::to_string(Ensemble::kMostMembers));
    }
    CertaintySettings settings = certaintySettings(survey.document);
    settings.members = members;
    return settings;
  }

  Survey mSurvey;
  CertaintySettings mSettings;
  std::unique_ptr<Ensemble> mEnsemble;
  EnsembleKeeper mKeeper;
};

}  // namespace

void bindEnsemble(py::module_& module) {
  bindMemberFits(module);
  py::class_<EnsembleAtWork>(module, "_Ensemble", "An ensemble on its way.")
      .def(py::init<const Survey&, int, std::uint64_t, std::vector<double>, const py::dict&,
                    const std::string&>(),
           py::arg("survey"), py::arg("members"), py::kw_only(), py::arg("seed"),
           py::arg("isovalues"), py::arg("vary"), py::arg("keep"))
      .def("run", &EnsembleAtWork::run, py::arg("threads"), py::arg("models"), py::arg("progress"),
           "Goes on until all members are done, or only until the models are fitted.")
      .def("take", &EnsembleAtWork::take, "Counts what _MemberFits.fit() has returned.")
      .def("save", &EnsembleAtWork::save, "Keeps what is done.")
      .def("progress", &EnsembleAtWork::progress, "What a progress callback is told.")
      .def("fits", &EnsembleAtWork::fits, "What fits members, here or elsewhere.")
      .def("open", &EnsembleAtWork::open, "Numbers of the members that are not done.")
      .def("certainty", &EnsembleAtWork::certainty, "Of the members that are done.");
}

}  // namespace talvesk::python
