#include "app/presenters/CommandReasons.h"

#include <QCoreApplication>

namespace talvesk {
namespace {

using Fact = bool CommandState::*;

struct Reason {
  Fact fact;
  const char* text;
};

constexpr Reason kReasons[] = {
    {&CommandState::records,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There are no shots yet.")},
    {&CommandState::traces,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There are no recordings yet.")},
    {&CommandState::recordInView,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "No shot is in view.")},
    {&CommandState::shotInView,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "No shot with traces is in view.")},
    {&CommandState::mends, QT_TRANSLATE_NOOP("talvesk::CommandReasons", "Nothing is mended.")},
    {&CommandState::filteredCopy,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "The shot in view has no filtered copy.")},
    {&CommandState::beforeShot,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "No recording begins before its shot.")},
    {&CommandState::picksInRange,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "The selected traces have no picks.")},
    {&CommandState::unconfirmedInRange,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons",
                       "No pick of the selected traces waits for confirmation.")},
    {&CommandState::picksToReview,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons",
                       "There are no shots yet, or no picks are shown.")},
    {&CommandState::canZoomBack,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is no earlier view.")},
    {&CommandState::canZoomForward,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is no later view.")},
    {&CommandState::canUndo,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is nothing to undo.")},
    {&CommandState::canRedo,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is nothing to do again.")},
    {&CommandState::strings,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There are no geophones and no shots yet.")},
    {&CommandState::toSave,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is nothing to save.")},
    {&CommandState::grid, QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is no grid yet.")},
    {&CommandState::cells, QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is no grid yet.")},
    {&CommandState::computed,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is no inversion yet.")},
    {&CommandState::inverted,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is no inversion yet.")},
    {&CommandState::rays,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is no inversion yet.")},
    {&CommandState::density,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is no inversion yet.")},
    {&CommandState::refractors,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is no layered profile yet.")},
    {&CommandState::known, QT_TRANSLATE_NOOP("talvesk::CommandReasons",
                                             "Nothing is known of the ground under the grid.")},
    {&CommandState::annotations,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "Nothing is drawn on the section yet.")},
    {&CommandState::picture,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is no section yet.")},
    {&CommandState::line,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is no line of geophones yet.")},
    {&CommandState::lineAndGrid,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons",
                       "There is no grid under a line of geophones yet.")},
    {&CommandState::drawable,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons", "There is nothing to make pictures of yet.")},
    {&CommandState::certainty,
     QT_TRANSLATE_NOOP("talvesk::CommandReasons",
                       "How certain the section is has not been computed.")},
};

}  // namespace

QString whyDisabled(const Command& command) {
  const Fact* fact = command.enabled.target<Fact>();
  for (const Reason& reason : kReasons) {
    if (fact != nullptr && reason.fact == *fact) {
      return QCoreApplication::translate("talvesk::CommandReasons", reason.text);
    }
  }
  return QCoreApplication::translate("talvesk::CommandReasons", "It cannot work yet.");
}

}  // namespace talvesk
