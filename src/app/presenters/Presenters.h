#pragma once

#include "app/LayeredModel.h"
#include "app/presenters/AnnotationsPresenter.h"
#include "app/presenters/BlowPairPresenter.h"
#include "app/presenters/CampaignPresenter.h"
#include "app/presenters/CertaintyPresenter.h"
#include "app/presenters/CheckPresenter.h"
#include "app/presenters/CommandSearchPresenter.h"
#include "app/presenters/ContoursPresenter.h"
#include "app/presenters/CurvesPresenter.h"
#include "app/presenters/DepthProfilePresenter.h"
#include "app/presenters/DrawingPresenter.h"
#include "app/presenters/ExportPresenter.h"
#include "app/presenters/FencePresenter.h"
#include "app/presenters/GatherSheetPresenter.h"
#include "app/presenters/GeometryPresenter.h"
#include "app/presenters/GuidancePresenter.h"
#include "app/presenters/HelpPresenter.h"
#include "app/presenters/InversionPresenter.h"
#include "app/presenters/KnownGroundPresenter.h"
#include "app/presenters/LayersPresenter.h"
#include "app/presenters/ModelPresenter.h"
#include "app/presenters/PalettePresenter.h"
#include "app/presenters/PrintPresenter.h"
#include "app/presenters/ProcessingPresenter.h"
#include "app/presenters/ProjectPresenter.h"
#include "app/presenters/ReciprocityPresenter.h"
#include "app/presenters/RecordExportPresenter.h"
#include "app/presenters/RecoveryPresenter.h"
#include "app/presenters/RefractionPresenter.h"
#include "app/presenters/ReportPresenter.h"
#include "app/presenters/ResidualsPresenter.h"
#include "app/presenters/ResolutionPresenter.h"
#include "app/presenters/ReviewPresenter.h"
#include "app/presenters/RunsPresenter.h"
#include "app/presenters/SecondLookPresenter.h"
#include "app/presenters/SectionPresenter.h"
#include "app/presenters/SettingsPresenter.h"
#include "app/presenters/ShotFilesPresenter.h"
#include "app/presenters/StylePresenter.h"
#include "app/presenters/SurveyPresenter.h"
#include "app/presenters/SurveyedPositionsPresenter.h"
#include "app/presenters/TraceHeadersPresenter.h"
#include "app/presenters/TraceMendsPresenter.h"
#include "app/presenters/TraceOptionsPresenter.h"
#include "app/presenters/TracesPresenter.h"
#include "app/presenters/TravelTimesPresenter.h"

namespace talvesk {

struct Command;

/// One presenter for each family of commands and what they show. A presenter is handed those whose
/// questions it asks on its way; what it changes the others hear from the session.
struct Presenters {
  explicit Presenters(Desk& desk);

  LayeredModel layered;  ///< forgets before the others show
  // They hear of a change in this order.
  SettingsPresenter settings;
  TracesPresenter traces;
  TraceMendsPresenter traceMends;
  TraceHeadersPresenter headers;
  BlowPairPresenter blowPairs;
  CheckPresenter checks;
  ReciprocityPresenter reciprocity;
  TraceOptionsPresenter traceOptions;
  CurvesPresenter curves;
  SectionPresenter section;
  AnnotationsPresenter annotations;
  StylePresenter styles;
  DepthProfilePresenter depthProfile;
  PalettePresenter palettes;
  ContoursPresenter contours;
  ProjectPresenter projects;
  RecoveryPresenter recovery;
  ShotFilesPresenter shotFiles;
  TravelTimesPresenter travelTimes;
  SurveyPresenter survey;
  GeometryPresenter geometry;
  SurveyedPositionsPresenter surveyed;
  ModelPresenter models;
  ResidualsPresenter residuals;
  SecondLookPresenter secondLook;
  InversionPresenter inversion;
  KnownGroundPresenter known;
  RunsPresenter runs;
  CertaintyPresenter certainty;
  ResolutionPresenter resolution;
  ProcessingPresenter processing;
  ReviewPresenter review;
  RefractionPresenter refraction;
  PrintPresenter prints;
  LayersPresenter layers;
  FencePresenter fence;
  ExportPresenter exports;
  DrawingPresenter drawings;
  RecordExportPresenter records;
  ReportPresenter reports;
  GatherSheetPresenter sheets;
  CampaignPresenter campaign;
  HelpPresenter help;
  GuidancePresenter guidance;
  CommandSearchPresenter search;

  /// All texts that are not in the form.
  void retranslate();
};

/// The rows of the table of commands, in the order of the menus.
std::vector<Command> commandRows(Desk& desk, Presenters& presenters);

}  // namespace talvesk
