#include "doctor/Doctor.h"
#include "doctor/FindingTexts.h"
#include "io/Survey.h"
#include "python/Bindings.h"
#include "python/LongWork.h"
#include "python/SurveyFiles.h"
#include "python/Values.h"
#include "session/SureMends.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace talvesk::python {
namespace {

using Findings = std::vector<doctor::Finding>;

py::list listOf(const Findings& findings) {
  py::list list;
  for (const doctor::Finding& finding : findings) {
    py::dict entry;
    entry["kind"] = doctor::keyOf(finding.kind);
    entry["shot"] = finding.shot;
    entry["sure"] = 100.0 * finding.confidence;
    entry["text"] = finding.text.english();
    entry["proposal"] = finding.proposal
                            ? py::object(py::str(doctor::describe(*finding.proposal).english()))
                            : py::none();
    list.append(entry);
  }
  return list;
}

Findings found(const Survey& survey, const Stopped& stopped) {
  return doctor::checkRecordings(survey.document, [&] { return !stopped(); });
}

py::list check(const Survey& survey) {
  const Survey copy = survey;
  Findings findings;
  runBeside([&](const Tell&, const Stopped& stopped) { findings = found(copy, stopped); });
  return listOf(findings);
}

py::list mend(Survey& survey, double sure) {
  if (!(sure > 0.0)) throw Error("sure must be above 0 percent");
  Survey work = survey;
  SureMends mends;
  runBeside([&](const Tell&, const Stopped& stopped) {
    mends = mendWhatIsSure(found(work, stopped), sure, work);
  });
  survey = std::move(work);
  for (const Message& note : mends.notes) warn(note.english());
  return listOf(mends.left);
}

}  // namespace

void bindMends(py::module_& module) {
  auto survey =
      py::reinterpret_borrow<py::class_<Survey, std::shared_ptr<Survey>>>(module.attr("Survey"));
  survey.def("check", check,
             "What is doubtful about the recordings: dicts of 'kind', 'shot' (None: the survey), "
             "'sure' (percent), 'text' and 'proposal' (None: there is none).");
  survey.def("mend", mend, py::arg("sure") = parameters::kSureMend.initial,
             "Carries out the proposals of check() that are at least so sure (percent), and looks "
             "again until there is none. Returns what is left. Mend records as they were recorded, "
             "then count_from_shot().");
  survey.def(
      "count_from_shot",
      [](Survey& self) {
        std::vector<std::string> warnings;
        countFromShot(self, warnings);
        for (const std::string& text : warnings) warn(text);
      },
      "Drops the samples from before the shot, of surveys that were read as recorded.");
}

}  // namespace talvesk::python
