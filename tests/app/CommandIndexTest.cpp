#include "app/CommandIndex.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

IndexedCommand command(const char* text, const char* english = "", const char* path = "",
                       const char* tip = "") {
  IndexedCommand made;
  made.text = QString::fromUtf8(text);
  made.key = made.text;
  made.english = QString::fromUtf8(english);
  made.path = QString::fromUtf8(path);
  made.toolTip = QString::fromUtf8(tip);
  return made;
}

const std::vector<IndexedCommand>& commands() {
  static const std::vector<IndexedCommand> all = {
      command("Öffnen...", "Open shot files...", "Datei"),
      command("Gitter ...", "Grid ...", "Projekt", "Zellen unter der Linie"),
      command("Gitterlinien zeigen", "Show Grid Lines", "Ansicht"),
      command("Größe", "Size", "Ansicht > Geophone"),
      command("Inversion der Laufzeiten", "Run tomography inversion", "Verarbeitung"),
  };
  return all;
}

std::vector<std::string> found(const char* typed, const QStringList& recent = {}) {
  std::vector<std::string> texts;
  for (const std::size_t i : findCommands(commands(), QString::fromUtf8(typed), recent)) {
    texts.push_back(commands()[i].english.toStdString());
  }
  return texts;
}

TEST(CommandIndex, findsByWordsInAnyOrderWithoutCaseAndAccents) {
  EXPECT_THAT(found("offnen"), ElementsAre("Open shot files..."));
  EXPECT_THAT(found("GROSSE"), ElementsAre("Size"));
  EXPECT_THAT(found("größe geo"), ElementsAre("Size"));
  EXPECT_THAT(found("laufz inv"), ElementsAre("Run tomography inversion"));
  EXPECT_THAT(found("gitter inv"), IsEmpty());
}

TEST(CommandIndex, findsByTheEnglishNameTheMenuAndTheToolTip) {
  EXPECT_THAT(found("tomography"), ElementsAre("Run tomography inversion"));
  EXPECT_THAT(found("datei"), ElementsAre("Open shot files..."));
  EXPECT_THAT(found("zellen"), ElementsAre("Grid ..."));
}

TEST(CommandIndex, findsWhereLettersAreLeftOut) {
  EXPECT_THAT(found("invrs"), ElementsAre("Run tomography inversion"));
  EXPECT_THAT(found("nvrs"), IsEmpty()) << "a word is begun with its first letter";
  EXPECT_THAT(found("gph"), IsEmpty()) << "whole menus would be found";
}

TEST(CommandIndex, findsWhereALetterIsNotAsItShouldBe) {
  EXPECT_THAT(found("invesrion"), ElementsAre("Run tomography inversion")) << "exchanged";
  EXPECT_THAT(found("inwersion"), ElementsAre("Run tomography inversion")) << "wrong";
  EXPECT_THAT(found("inverssion"), ElementsAre("Run tomography inversion")) << "too many";
  EXPECT_THAT(found("inwerssion"), IsEmpty()) << "two are";
  EXPECT_THAT(found("grad"), IsEmpty()) << "short words would be found everywhere";
}

TEST(CommandIndex, findsByWhatACommandIsCalledBesidesAfterItsName) {
  IndexedCommand grid = command("Gitter ...");
  grid.words = QStringLiteral("Netz, Zellgröße");
  grid.englishWords = QStringLiteral("mesh, cell size");
  const std::vector<IndexedCommand> both = {grid, command("Netzbrummen")};
  using Indices = std::vector<std::size_t>;
  EXPECT_EQ(findCommands(both, QStringLiteral("mesh"), {}), Indices{0});
  EXPECT_EQ(findCommands(both, QStringLiteral("size cell"), {}), Indices{0});
  EXPECT_EQ(findCommands(both, QStringLiteral("zellgrosse"), {}), Indices{0});
  EXPECT_EQ(findCommands(both, QStringLiteral("zellgroses"), {}), Indices{0}) << "misspelt";
  EXPECT_EQ(findCommands(both, QStringLiteral("netz"), {}), (Indices{1, 0}));
  EXPECT_EQ(findCommands(both, QStringLiteral("msh"), {}), Indices{}) << "no gaps there";
}

TEST(CommandIndex, putsTheBetterFitFirstAndOfEqualsTheOneUsedLast) {
  EXPECT_THAT(found("gitter"), ElementsAre("Grid ...", "Show Grid Lines"));
  EXPECT_THAT(found("gitterl"), ElementsAre("Show Grid Lines"));
  EXPECT_THAT(found("gitter", {QString::fromUtf8("Gitterlinien zeigen")}),
              ElementsAre("Grid ...", "Show Grid Lines"));
  EXPECT_THAT(found("", {QString::fromUtf8("Größe"), QStringLiteral("gone")}),
              ElementsAre("Size", "Open shot files...", "Grid ...", "Show Grid Lines",
                          "Run tomography inversion"));
}

TEST(CommandIndex, takesTheCommandsOfAllMenusWithTheirPlace) {
  QMenuBar bar;
  QMenu* file = bar.addMenu(QStringLiteral("&File"));
  QAction* open = file->addAction(QStringLiteral("&Open \"R&&D\"..."));
  open->setShortcut(QKeySequence(QStringLiteral("Ctrl+O")));
  file->addSeparator();
  QMenu* more = file->addMenu(QStringLiteral("E&xport"));
  more->addAction(QStringLiteral("&KML"))->setEnabled(false);
  more->addAction(QStringLiteral("Hidden"))->setVisible(false);
  QAction* self = file->addAction(QStringLiteral("Find"));
  const std::vector<IndexedCommand> all = commandsOf(bar, self);
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0].text, QStringLiteral("Open \"R&D\"..."));
  EXPECT_EQ(all[0].path, QStringLiteral("File"));
  EXPECT_EQ(all[0].shortcut,
            QKeySequence(QStringLiteral("Ctrl+O")).toString(QKeySequence::NativeText));
  EXPECT_EQ(all[1].text, QStringLiteral("KML"));
  EXPECT_EQ(all[1].path, QStringLiteral("File > Export"));
  EXPECT_EQ(all[1].action->isEnabled(), false);
}

}  // namespace
}  // namespace talvesk
