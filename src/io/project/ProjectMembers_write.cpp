#include "base/PlainText.h"
#include "io/EntryName.h"
#include "io/MemberFile.h"
#include "io/project/ProjectMembers.h"
#include "io/project/ProjectMembers_records.inl"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

std::vector<std::string> bareNames(const std::vector<std::string>& paths) {
  std::vector<std::string> names;
  names.reserve(paths.size());
  for (const std::string& path : paths) {
    std::string name = bareName(path);
    // A file that no archive can name is not in it, but what it was called may be told.
    names.push_back(isEntryName(name) ? std::move(name) : withoutControls(std::move(name)));
  }
  return names;
}

StoredTrace storedTrace(const Trace& trace, bool withSamples) {
  StoredTrace stored;
  stored.pos = trace.receiverPosition.x;
  stored.time = trace.sampleInterval;
  stored.droppedSamples = trace.droppedSamples;
  stored.waveKind = trace.waveKind;
  stored.delay = trace.delay;
  stored.source = trace.sourcePosition;
  stored.receiver = trace.receiverPosition;
  if (!withSamples) return stored;
  stored.TAB = trace.samples;
  stored.TAB_DX = trace.samplesDX;
  stored.TAB_SX = trace.samplesSX;
  return stored;
}

/// One trace at a time: the samples of a survey exist once in memory and no more.
void putTraceSets(XmlWriter& writer, const TomoDocument& document,
                  const std::vector<bool>& withSamples) {
  xml::Output output(writer);
  writer.beginSequence("traceSet");
  for (std::size_t set = 0; set < document.recordings->traceSets.size(); ++set) {
    const bool full = set < withSamples.size() && withSamples[set];
    writer.beginSequence(nullptr);
    for (const Trace& trace : document.recordings->traceSets[set]) {
      output.put(nullptr, storedTrace(trace, full));
    }
    writer.end();
  }
  writer.end();
}

void putFiltered(XmlWriter& writer, const TomoDocument& document) {
  xml::Output output(writer);
  writer.beginSequence("filtered");
  for (const TraceSet& traces : document.recordings->traceSets) {
    writer.beginSequence(nullptr);
    for (const Trace& trace : traces) output.put(nullptr, trace.filtered);
    writer.end();
  }
  writer.end();
}

}  // namespace

bool isCommonMember(const std::string& name) {
  const auto members = {kSurveyMember, kGridMember, kTracesMember, kPalettesMember,
                        kRefractionMember};
  return std::find(members.begin(), members.end(), name) != members.end();
}

int writeSurvey(const std::string& path, const TomoDocument& document,
                const SectionViewSettings& section) {
  return writeMember(path, "TomoDocument", [&](XmlWriter& writer) {
    xml::Output output(writer);
    SectionViewSettings view = section;
    std::vector<InversionRecord> runs;
    if (document.result->lastInversion) runs.push_back(*document.result->lastInversion);
    TomoDocument survey = document;
    describeSurvey(output, survey, view, runs);
  });
}

int writeGrid(const std::string& path, const TomoDocument& document) {
  return writeMember(path, "Grid", [&](XmlWriter& writer) {
    GridMember member;
    if (const Grid* grid = document.model->grid.get()) {
      member.righe = grid->righe();
      member.col = grid->col();
      member.nV = grid->nV();
      member.aLato = grid->aLato();
      member.velocities = grid->velocities();
      for (std::uint32_t c = 0; c < grid->cellCount(); ++c)
        member.toBeDraw.push_back(grid->draw(c));
    }
    xml::Output output(writer);
    describe(output, member);
  });
}

int writeTraces(const std::string& path, const TomoDocument& document,
                const std::vector<bool>& withSamples) {
  return writeMember(path, "Traces", [&](XmlWriter& writer) {
    xml::Output output(writer);
    output.put("filenames", bareNames(document.recordings->filenames));
    output.put("filenames_DX", bareNames(document.recordings->filenames_DX));
    output.put("filenames_SX", bareNames(document.recordings->filenames_SX));
    output.put("wave_type", document.recordings->waveType);
    output.put("shot_pos", document.line->shotPositions);
    putTraceSets(writer, document, withSamples);
    putFiltered(writer, document);
  });
}

int writeRefraction(const std::string& path,
                    const refractionDataStructure::Interpretation& interpretation) {
  return writeMember(path, "Refraction data", [&](XmlWriter& writer) {
    refractionDataStructure::Interpretation stored = interpretation;
    putSigns(stored);
    xml::Output output(writer);
    describe(output, stored);
  });
}

}  // namespace talvesk
