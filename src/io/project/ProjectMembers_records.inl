#pragma once

// The elements of the records that a project holds. Their names and order are those of every
// project file there is; what came later stands at the end and is optional.

#include "base/Console.h"
#include "io/XmlRecords.inl"
#include "io/project/MendsMember.h"
#include "io/project/ProjectAnnotations.h"
#include "io/project/ProjectCertainty.h"
#include "io/project/ProjectFilters.h"
#include "io/project/ProjectFirstLayer.h"
#include "io/project/ProjectKnownGround.h"
#include "io/project/ProjectMembers.h"
#include "io/project/ProjectPicks.h"
#include "io/project/ProjectReaders.h"
#include "io/project/ProjectResult.h"
#include "io/project/ProjectRuns.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"

#include <type_traits>

namespace talvesk {

template <class V>
void describe(V& fields, Point2D& point) {
  fields("x", point.x);
  fields("z", point.z);
}

template <class V>
void describe(V& fields, TravelTime& record) {
  fields("shotPos2d", record.shotPos2d);
  fields("indexStesa", record.indexStesa);
  fields("ttMisurati", record.ttMisurati);
  fields("ttCalcolati", record.ttCalcolati);
  fields("traceSetID", record.traceSetID);
}

template <class V>
void describe(V& fields, geographicsCoord& coordinates) {
  fields.optional("CRS", coordinates.CRS);
  fields("mEastFstGeoph", coordinates.mEastFstGeoph);
  fields("mEastLstGeoph", coordinates.mEastLstGeoph);
  fields("mNorthFstGeoph", coordinates.mNorthFstGeoph);
  fields("mNorthLstGeoph", coordinates.mNorthLstGeoph);
  if constexpr (std::is_same_v<V, xml::Gaps>) {
    if (!fields.missing.empty()) console::logError(" CRS not set");
  }
}

template <class V>
void describe(V& fields, MapVertex& vertex) {
  fields("distance", vertex.distance);
  fields("easting", vertex.place.easting);
  fields("northing", vertex.place.northing);
}

template <class V>
void describe(V& fields, MapCourse& course) {
  fields("geoCoord", course.ends);
  fields("vertices", course.vertices);
}

template <class V>
void describe(V& fields, VelocityLayer& layer) {
  fields("initialDepth", layer.initialDepth);
  fields("initialVelocity", layer.initialVelocity);
  fields("finalDepth", layer.finalDepth);
  fields("finalVelocity", layer.finalVelocity);
}

template <class V>
void describe(V& fields, RgbColor& color) {
  fields("r", color.r);
  fields("g", color.g);
  fields("b", color.b);
}

template <class V>
void describe(V& fields, ContourSettings& contours) {
  fields.optional("customized", contours.customized);
  fields.optional("numberOfValues", contours.numberOfValues);
  fields.optional("customValues", contours.customValues);
  fields.optional("gradientValues", contours.gradientValues);
  fields.optional("laplacianValues", contours.laplacianValues);
  fields.optional("labelEvery", contours.labelEvery);
  fields.optional("labelSize", contours.labelSize);
  fields.optional("color", contours.color);
  fields.optional("onProfile", contours.onProfile);
  fields.optional("filled", contours.filled);
  fields.optional("onLaplacian", contours.onLaplacian);
  fields.optional("onVerticalGradient", contours.onVerticalGradient);
}

template <class V>
void describe(V& fields, SectionViewSettings& section) {
  fields.optional("profile", section.profile);
  fields.optional("smooth", section.smooth);
  fields.optional("quantity", section.quantity);
  fields.optional("rays", section.rays);
  fields.optional("refraction", section.refraction);
  fields.optional("known", section.known);
  fields.optional("scalarBar", section.scalarBar);
  fields.optional("title", section.title);
  fields.optional("gridLines", section.gridLines);
  fields.optional("geophones", section.geophones);
  fields.optional("verticalExaggeration", section.verticalExaggeration);
  fields.optional("lockRange", section.lockRange);
  fields.optional("contours", section.contours);
  fields.optional("fade_uncertain", section.fadeUncertain);
  fields.optional("depth_bands", section.bandVelocities);
  fields.optional("annotations", section.annotations);
}

template <class V>
void describe(V& fields, GridMember& grid) {
  fields("righe", grid.righe);
  fields("col", grid.col);
  fields("nV", grid.nV);
  fields("aLato", grid.aLato);
  fields("velocities", grid.velocities);
  fields("to_be_draw", grid.toBeDraw);
}

template <class V>
void describe(V& fields, Misfit& misfit) {
  fields("count", misfit.count);
  fields("rmse", misfit.rmse);
  fields("relativeRms", misfit.relativeRms);
  fields("maxError", misfit.maxError);
  fields("maxRelativeError", misfit.maxRelativeError);
}

template <class V>
void describe(V& fields, SectionMisfit& misfit) {
  fields("count", misfit.count);
  fields("rmse", misfit.rmse);
  fields("relativeRms", misfit.relativeRms);
  fields("bias", misfit.bias);
  fields("maxAbs", misfit.maxAbs);
  fields("maxShot", misfit.maxShot);
  fields("maxReceiver", misfit.maxReceiver);
}

template <class V>
void describe(V& fields, FoundShift& shift) {
  fields("late", shift.late);
  fields("mended", shift.mended);
}

template <class V>
void describe(V& fields, FitRecord& fit) {
  fields("error_floor", fit.errorFloor);
  fields("error_share", fit.errorShare);
  fields("robust", fit.robust);
  fields("blocky", fit.blocky);
  fields("statics", fit.statics);
  fields("lambda", fit.lambda);
  fields("chi2", fit.chi2);
  fields("chi2_all", fit.chi2All);
  fields("suspects", fit.suspects);
  fields("target", fit.target);
  fields("reference", fit.reference);
  fields("shifts", fit.shifts);
  fields.optional("known", fit.known);
  fields.optional("trigger_error", fit.triggerError);
}

template <class V>
void describe(V& fields, ResultMember& result) {
  fields("hit_counts", result.outcome.hitCounts);
  fields("coorcount", result.outcome.coorcount);
  fields("smoothed", result.outcome.smoothedResult);
  fields("times_of_section", result.outcome.timesOfSection);
  fields("computing_seconds", result.run.computingSeconds);
  fields("picks", result.run.picks);
  fields("section_history", result.run.sectionHistory);
  fields.optional("fit", result.fits);
  fields.optional("coarse_to_fine", result.run.coarseToFine);
  fields.optional("error_floor", result.run.errorFloor);
  fields.optional("error_share", result.run.errorShare);
}

template <class V>
void describe(V& fields, UnconfirmedMember& member) {
  fields("picks", member.picks);
  fields("unconfirmed", member.traces);
}

template <class V>
void describe(V& fields, StoredError& error) {
  fields("of", error.of);
  fields("time", error.time);
  fields("sigma", error.sigma);
}

template <class V>
void describe(V& fields, PickErrorsMember& member) {
  fields("errors", member.errors);
  fields("recorded", member.recorded);
}

template <class V>
void describe(V& fields, Quantiles& quantiles) {
  fields("median", quantiles.median);
  fields("low", quantiles.low);
  fields("high", quantiles.high);
}

template <class V>
void describe(V& fields, IsovalueBand& band) {
  fields("velocity", band.velocity);
  fields("depths", band.depths);
}

template <class V>
void describe(V& fields, CertaintyModel& model) {
  fields("name", model.name);
  fields("chi2", model.chi2);
  fields("members", model.members);
}

template <class V>
void describe(V& fields, CertaintyMember& member) {
  fields("section", member.section);
  fields("picks", member.certainty.picks);
  fields("seed", member.certainty.seed);
  fields("members", member.certainty.members);
  fields("left_out", member.certainty.leftOut);
  fields("velocities", member.certainty.velocities);
  fields("deviations", member.certainty.deviations);
  fields("members_with_rays", member.certainty.touched);
  fields("depths", member.certainty.bands);
  fields("models", member.certainty.models);
}

template <class V>
void describe(V& fields, EnsembleState& state) {
  fields("key", state.key);
  fields("start", state.start);
  fields("members", state.members);
  fields("bins", state.bins);
  fields("sums", state.sums);
  fields("squares", state.squares);
  fields("members_with_rays", state.touched);
}

template <class V>
void describe(V& fields, StoredReader& stored) {
  fields("file", stored.file);
  fields("reader", stored.reader);
  fields("format", stored.format);
  fields("record", stored.record);
  fields("name", stored.name);
}

template <class V>
void describe(V& fields, ReadersMember& member) {
  fields("sets", member.sets);
}

template <class V>
void describe(V& fields, FilterStep& step) {
  fields("kind", step.kind);
  fields("numbers", step.numbers);
}

template <class V>
void describe(V& fields, StoredFilters& stored) {
  fields("set", stored.set);
  fields("steps", stored.steps);
}

template <class V>
void describe(V& fields, FiltersMember& member) {
  fields("sets", member.sets);
}

template <class V>
void describe(V& fields, TraceMend& mend) {
  fields("killed", mend.killed);
  fields("reversed", mend.reversed);
  fields("muted_before", mend.mutedBefore);
  fields.optional("gain", mend.gain);
}

template <class V>
void describe(V& fields, RecordedPick& pick) {
  fields("channel", pick.channel);
  fields("time", pick.time);
  fields("waits", pick.waits);
}

template <class V>
void describe(V& fields, StoredOriginal& original) {
  fields("TAB", original.TAB);
  fields("TAB_DX", original.TAB_DX);
  fields("TAB_SX", original.TAB_SX);
}

template <class V>
void describe(V& fields, StoredMends& stored) {
  fields("set", stored.set);
  fields("samples", stored.samples);
  fields("time_shift", stored.mends.timeShift);
  fields("disabled", stored.mends.disabled);
  fields("order_reversed", stored.mends.orderReversed);
  fields("stacked_with", stored.mends.stackedWith);
  fields("traces", stored.mends.traces);
  fields("picks", stored.mends.picks);
  fields("originals", stored.originals);
}

template <class V>
void describe(V& fields, MendsMember& member) {
  fields("mends", member.shots);
}

template <class V>
void describe(V& fields, InversionRecord& run) {
  fields("externalIterations", run.externalIterations);
  fields("solverIterations", run.solverIterations);
  fields("smoothing", run.smoothing);
  fields("smoothingType", run.smoothingType);
  fields("symmetric", run.symmetric);
  fields("minVelocity", run.minVelocity);
  fields("maxVelocity", run.maxVelocity);
  fields("elapsedSeconds", run.elapsedSeconds);
  fields("stopped", run.stopped);
  fields("history", run.history);
}

template <class V>
void describe(V& fields, StoredRun& stored) {
  KeptRun& run = stored.run;
  fields("number", run.number);
  fields("name", run.name);
  fields("when", run.when);
  fields("run", run.record);
  fields("computing_seconds", run.record.computingSeconds);
  fields("picks", run.record.picks);
  fields("section_history", run.record.sectionHistory);
  fields.optional("coarse_to_fine", run.record.coarseToFine);
  fields("fit", stored.fits);
  fields("rms_percent", run.rmsPercent);
  fields("chi2", run.chi2);
  fields("chi2_all", run.chi2All);
  fields("positions", run.positions);
  fields("righe", run.size.righe);
  fields("col", run.size.col);
  fields("nV", run.size.nV);
  fields("aLato", run.size.aLato);
  fields("x_offset", run.xOffset);
  fields("surface_x", stored.surfaceX);
  fields("surface_z", stored.surfaceZ);
  fields("velocities", stored.velocities);
  fields("coorcount", run.coorcount);
  fields("hit_counts", run.hitCounts);
  fields("times", run.times);
  fields.optional("error_floor", run.record.errorFloor);
  fields.optional("error_share", run.record.errorShare);
  fields.optional("trusted_rms", run.trustedRms);
}

template <class V>
void describe(V& fields, KnownLayer& layer) {
  fields("top", layer.top);
  fields("bottom", layer.bottom);
  fields("velocity", layer.velocity);
  fields("error", layer.error);
}

template <class V>
void describe(V& fields, KnownBorehole& borehole) {
  fields("name", borehole.name);
  fields("x", borehole.x);
  fields("offset", borehole.offset);
  fields("layers", borehole.layers);
}

template <class V>
void describe(V& fields, KnownDepth& point) {
  fields("name", point.name);
  fields("x", point.x);
  fields("depth", point.depth);
  fields("error", point.error);
  fields("refractor", point.refractor);
  fields("isovalue", point.isovalue);
  fields("above", point.above);
  fields("below", point.below);
}

template <class V>
void describe(V& fields, KnownCorner& corner) {
  fields("x", corner.x);
  fields("depth", corner.depth);
}

template <class V>
void describe(V& fields, KnownBody& body) {
  fields("name", body.name);
  fields("velocity", body.velocity);
  fields("outline", body.outline);
}

template <class V>
void describe(V& fields, KnownGroundMember& member) {
  fields("boreholes", member.known.boreholes);
  fields("depths", member.known.depths);
  fields("bodies", member.known.bodies);
}

template <class V>
void describe(V& fields, MarkedIsoline& isoline) {
  fields("name", isoline.name);
  fields("velocity", isoline.velocity);
  fields("color", isoline.color);
  fields("width", isoline.width);
}

template <class V>
void describe(V& fields, Annotation& item) {
  fields("kind", item.kind);
  fields("text", item.text);
  fields("points", item.points);
  fields("pattern", item.pattern);
  fields("color", item.color);
  fields("width", item.width);
  fields("text_size", item.textSize);
}

template <class V>
void describe(V& fields, AnnotationsMember& member) {
  fields("isolines", member.annotations.isolines);
  fields("items", member.annotations.items);
}

template <class V>
void describe(V& fields, RunsMember& member) {
  fields("runs", member.runs);
}

/// The elements of a survey, at the top of its member.
/// \param runs one, or none when nothing is known of the last inversion
template <class V>
void describeSurvey(V& fields, TomoDocument& document, SectionViewSettings& section,
                    std::vector<InversionRecord>& runs) {
  fields("goephonesStringSet", document.line.edit().goephonesStringSet);
  fields("ttArray", document.ttArray);
  fields.optional("has_tomographic_info", document.result.edit().has_tomographic_info);
  fields.optional("geoCoord", document.map.edit().geoCoord);
  fields.optional("geoCoord_isSet", document.map.edit().geoCoord_isSet);
  fields.optional("RMSE_tomography", document.result.edit().RMSE_tomography);
  fields.optional("info_density", document.result.edit().info_density);
  fields.optional("title", document.title);
  fields.optional("min_velocity", document.model.edit().minVelocity);
  fields.optional("max_velocity", document.model.edit().maxVelocity);
  fields.optional("layers", document.model.edit().layers);
  fields.optional("proposed_cell_sizes", document.proposedCellSizes);
  fields.optional("coverage_limit", document.result.edit().coverageLimit);
  fields.optional("section_view", section);
  fields.optional("last_inversion", runs);
}

template <class V>
void describe(V& fields, StoredTrace& trace) {
  fields("pos", trace.pos);
  fields("time", trace.time);
  fields("TAB", trace.TAB);
  fields.optional("dropped_samples", trace.droppedSamples);
  fields.optional("kind", trace.waveKind);
  fields.optional("delay", trace.delay);
  fields.optional("source", trace.source);
  fields.optional("receiver", trace.receiver);
  fields.optional("TAB_DX", trace.TAB_DX);
  fields.optional("TAB_SX", trace.TAB_SX);
  if constexpr (std::is_same_v<V, xml::Gaps>) trace.hasPlace = fields.missing.empty();
}

template <class V>
void describe(V& fields, TracesMember& member) {
  fields("filenames", member.filenames);
  fields.optional("filenames_DX", member.filenames_DX);
  fields.optional("filenames_SX", member.filenames_SX);
  fields("wave_type", member.waveType);
  fields("shot_pos", member.shotPositions);
  fields("traceSet", member.traceSets);
  fields.optional("filtered", member.filtered);
}

namespace refractionDataStructure {

template <class V>
void describe(V& fields, phantom& curve) {
  fields("enabled", curve.enabled);
  fields("layer", curve.layer);
  fields("shotID", curve.shotID);
  fields("trasla", curve.trasla);
  fields.optional("points", curve.points);
  fields.optional("times", curve.times);
  fields.optional("slope", curve.slope);
  fields.optional("intercept", curve.intercept);
  fields.optional("reciprocalTime", curve.reciprocalTime);
}

template <class V>
void describe(V& fields, computedData& data) {
  fields("tG", data.tG);
  fields("tV", data.tV);
  fields("tGs", data.tGs);
  fields("tVs", data.tVs);
  fields.optional("x", data.x);
  fields.optional("chosenXY", data.chosenXY);
  fields.optional("velocity", data.velocity);
  fields.optional("depth", data.depth);
  fields.optional("elevation", data.elevation);
}

template <class V>
void describe(V& fields, processingData& data) {
  fields("cData", data.cData);
  fields("v1", data.v1);
  // Other programs may give a refractor one velocity.
  xml::OneOrMany v2{data.v2};
  xml::OneOrMany v3{data.v3};
  fields("v2", v2);
  fields("v3", v3);
  fields.optional("picks", data.picks);
}

template <class V>
void describe(V& fields, FirstLayer& first) {
  fields("x", first.x);
  fields("velocity", first.velocity);
  fields("growth", first.growth);
  fields("growsTo", first.growsTo);
}

template <class V>
void describe(V& fields, layerStruct& layers) {
  fields("shotID", layers.shotID);
  fields("layer", layers.layer);
  fields("trasla", layers.trasla);
  fields("enabled", layers.enabled);
}

template <class V>
void describe(V& fields, Interpretation& interpretation) {
  fields("phnt_A", interpretation.phnt_A);
  fields("phnt_R", interpretation.phnt_R);
  fields("refractData", interpretation.refractData);
  fields("ttLayer", interpretation.ttLayer);
}

}  // namespace refractionDataStructure

template <class V>
void describe(V& fields, FirstLayerMember& member) {
  fields("first", member.first);
  fields("v1", member.v1);
  fields("picks", member.picks);
}

}  // namespace talvesk
