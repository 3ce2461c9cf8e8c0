#include "model/Recordings.h"
#include "support/FileLimit.h"
#include "support/TestProjects.h"

#include <QSignalSpy>
#include <chrono>
#include <csignal>
#include <random>

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using refractionDataStructure::Interpretation;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

enum class Step { kSurvey, kGrid, kTraces, kPalettes, kRefraction, kArchive, kNone };

/// Fails at one step, or dies there.
class FailingWriter : public ProjectWriter {
 public:
  explicit FailingWriter(Step step, bool dies = false) : mStep(step), mDies(dies) {}

  int saveTomoDocument_XML(const std::string& path, const TomoDocument& document,
                           const SectionViewSettings& section) override {
    return at(Step::kSurvey) ? 1 : ProjectWriter::saveTomoDocument_XML(path, document, section);
  }
  int saveTomoDocumentGrid_XML(const std::string& path, const TomoDocument& document) override {
    const bool fails = at(Step::kGrid);  // after it has written something
    return ProjectWriter::saveTomoDocumentGrid_XML(path, document) != 0 || fails ? 1 : 0;
  }
  int saveTomoDocumentTraces_XML(const std::string& path, const TomoDocument& document,
                                 const std::vector<bool>& withSamples,
                                 SourceFiles& sources) override {
    return at(Step::kTraces)
               ? 1
               : ProjectWriter::saveTomoDocumentTraces_XML(path, document, withSamples, sources);
  }
  int savePalettes_XML(const std::string& path, const ColorPaletteList& palettes) override {
    return at(Step::kPalettes) ? 1 : ProjectWriter::savePalettes_XML(path, palettes);
  }
  int saveRefraction_XML(const std::string& path, const Interpretation& records) override {
    return at(Step::kRefraction) ? 1 : ProjectWriter::saveRefraction_XML(path, records);
  }
  int compress_project(const std::string& archive, const std::vector<std::string>& files) override {
    return at(Step::kArchive) ? 1 : ProjectWriter::compress_project(archive, files);
  }

 private:
  bool at(Step step) const {
    if (step == mStep && mDies) ::kill(::getpid(), SIGKILL);
    return step == mStep;
  }
  Step mStep;
  bool mDies;
};

class SavingFaults : public ProjectTest, public ::testing::WithParamInterface<Step> {
 protected:
  SavingFaults() {
    EXPECT_EQ(save(), 0);
    before = TestFolder::get(archive());
    project.document.title = "changed";
  }
  int saveWith(ProjectWriter& faulty) {
    return faulty.save(archive(), work(), project.document, project.interpretation,
                       project.palettes);
  }
  /// The project is as it was saved before, and nothing else lies beside it.
  void expectOldProjectKept() {
    EXPECT_EQ(TestFolder::get(archive()), before);
    LoadedProject back;
    EXPECT_EQ(load(archive(), back), 0) << reader.message();
    EXPECT_EQ(back.document.title, "");
    EXPECT_EQ(folder.entries(), kEntries);
  }
  static constexpr int kEntries = 5;  ///< three shots, the working folder, the project
  std::string before;
};

TEST_P(SavingFaults, leaveTheOldProjectWhereItIs) {
  FailingWriter faulty(GetParam());
  EXPECT_EQ(saveWith(faulty), 1);
  EXPECT_TRUE(faulty.hasError());
  EXPECT_FALSE(faulty.message().empty());
  EXPECT_THAT(leftovers(), IsEmpty());
  expectOldProjectKept();
}

TEST_P(SavingFaults, areOverAtTheNextSave) {
  FailingWriter faulty(GetParam());
  ASSERT_EQ(saveWith(faulty), 1);
  ASSERT_EQ(save(), 0) << console.error();
  LoadedProject back;
  EXPECT_EQ(load(archive(), back), 0);
  EXPECT_EQ(back.document.title, "changed");
}

TEST_P(SavingFaults, ofAProcessThatDiesKeepTheOldProject) {
  const pid_t child = ::fork();
  if (child == 0) {
    FailingWriter dying(GetParam(), true);
    saveWith(dying);
    ::_exit(0);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(leftovers().size(), 2);  // the folder and its lock
  expectOldProjectKept();
  EXPECT_THAT(leftovers(), IsEmpty());  // the load cleared what the dead left
}

INSTANTIATE_TEST_SUITE_P(Steps, SavingFaults,
                         ::testing::Values(Step::kSurvey, Step::kGrid, Step::kTraces,
                                           Step::kPalettes, Step::kRefraction, Step::kArchive));

TEST_F(SavingFaults, goOnAfterAMemberButNotAfterTheRefraction) {
  const auto signalsOf = [&](Step step) {
    FailingWriter faulty(step);
    std::string order;
    const auto note = [&order](const char* letter) {
      return [&order, letter] { order += letter; };
    };
    QObject::connect(&faulty, &ProjectWriter::saved_tomo_xml, note("t"));
    QObject::connect(&faulty, &ProjectWriter::error_saved_tomo_xml, note("T"));
    QObject::connect(&faulty, &ProjectWriter::saved_grid, note("g"));
    QObject::connect(&faulty, &ProjectWriter::error_saved_grid, note("G"));
    QObject::connect(&faulty, &ProjectWriter::saved_traces, note("r"));
    QObject::connect(&faulty, &ProjectWriter::error_saved_traces, note("R"));
    QObject::connect(&faulty, &ProjectWriter::saved_palettes, note("p"));
    QObject::connect(&faulty, &ProjectWriter::error_saved_palettes, note("P"));
    QObject::connect(&faulty, &ProjectWriter::saved_refraction, note("f"));
    QObject::connect(&faulty, &ProjectWriter::error_saved_refraction, note("F"));
    QObject::connect(&faulty, &ProjectWriter::saved_compressed, note("z"));
    QObject::connect(&faulty, &ProjectWriter::error_saved_compressed, note("Z"));
    QObject::connect(&faulty, &ProjectWriter::saved_completed, note("."));
    saveWith(faulty);
    return order;
  };
  EXPECT_EQ(signalsOf(Step::kNone), "tgrpfz.");
  EXPECT_EQ(signalsOf(Step::kSurvey), "TgrpfZ.");
  EXPECT_EQ(signalsOf(Step::kTraces), "tgRpfZ.");
  EXPECT_EQ(signalsOf(Step::kRefraction), "tgrpF");
  EXPECT_EQ(signalsOf(Step::kArchive), "tgrpfZ.");
}

TEST_F(SavingFaults, ofAMemberLeaveNoHalfOfItForTheArchive) {
  FailingWriter faulty(Step::kGrid);
  EXPECT_EQ(saveWith(faulty), 1);
  EXPECT_THAT(console.out(), HasSubstr("ProjectWriter::saveRefraction_XML\n"
                                       "ProjectWriter::compress_project\n"));
  EXPECT_THAT(console.error(),
              ::testing::MatchesRegex("(.|\n)* : write_ZIP\\(\\) : impossible to tmp "
                                      "[^\n]*/grid.xml\n"));
}

TEST_F(SavingFaults, ofAFullDiskLoseNothing) {
  bool saved = false;
  for (rlim_t limit = 256; !saved; limit *= 2) {
    ASSERT_LT(limit, rlim_t{1} << 30);
    {
      const FileLimit full(limit);
      saved = save() == 0;
    }
    EXPECT_THAT(leftovers(), IsEmpty());
    EXPECT_EQ(folder.entries(), kEntries) << limit;
    if (saved) break;
    ASSERT_EQ(TestFolder::get(archive()), before) << limit;
  }
  LoadedProject back;
  EXPECT_EQ(load(archive(), back), 0) << reader.message();
}

TEST_F(SavingFaults, ofAFullDiskAreNamedAsTheProgramAlwaysDid) {
  const FileLimit full(512);
  EXPECT_EQ(save(), 1);
  EXPECT_THAT(console.error(), HasSubstr("[ERROR] TomoDocument cannot be stored on disk.\n"));
  EXPECT_THAT(console.error(), HasSubstr("[ERROR] Traces cannot be stored on disk.\n"));
  EXPECT_THAT(console.error(), HasSubstr("[ERROR] Palettes cannot be stored on disk.\n"));
}

TEST_F(SavingFaults, ofAWorkingFolderThatIsNotThere) {
  EXPECT_EQ(writer.save(archive(), folder.file("nowhere/"), project.document,
                        project.interpretation, project.palettes),
            1);
  EXPECT_THAT(console.error(), HasSubstr("ERROR: Impossible to save!\n"));
  expectOldProjectKept();
}

TEST_F(SavingFaults, ofAPlaceThatCannotBeWritten) {
  EXPECT_EQ(save(folder.file("nowhere/line.tvsk"), project), 1);
  EXPECT_THAT(console.error(),
              ::testing::MatchesRegex("(.|\n)*ERROR : \\.\\.\\\\talvesk\\\\save_project, line "
                                      "[0-9]+ : write_ZIP\\(\\) : impossible to (.|\n)*"));
  EXPECT_EQ(save("/dev/full", project), 1);
  EXPECT_EQ(save(folder.path(), project), 1);
  EXPECT_EQ(TestFolder::get(archive()), before);
}

TEST_F(SavingFaults, areNoneThroughASymbolicLink) {
  const std::string link = folder.file("link.tvsk");
  ASSERT_TRUE(QFile::link(QString::fromStdString(archive()), QString::fromStdString(link)));
  ASSERT_EQ(save(link, project), 0);
  EXPECT_NE(TestFolder::get(archive()), before);
  EXPECT_TRUE(QFileInfo(QString::fromStdString(link)).isSymLink());
}

TEST_F(SavingFaults, areNoneWhereALinkPointsAtNothingYet) {
  const std::string link = folder.file("link.tvsk");
  ASSERT_TRUE(QFile::link(QStringLiteral("new.tvsk"), QString::fromStdString(link)));
  ASSERT_EQ(save(link, project), 0);
  EXPECT_TRUE(QFileInfo(QString::fromStdString(link)).isSymLink());
  LoadedProject back;
  EXPECT_EQ(load(folder.file("new.tvsk"), back), 0) << reader.message();
}

TEST_F(SavingFaults, leaveFilesOfTheUserAlone) {
  folder.put("line.tvsk~", "of an editor");
  FailingWriter faulty(Step::kArchive);
  EXPECT_EQ(saveWith(faulty), 1);
  ASSERT_EQ(save(), 0);
  EXPECT_EQ(TestFolder::get(archive() + "~"), "of an editor");
}

TEST_F(SavingFaults, neverLeaveTheNameWithoutAWholeProject) {
  constexpr int kKills = 20;
  std::mt19937 random(std::random_device{}());
  std::uniform_real_distribution<double> wait(0.0, 0.03);  // seconds; a few saves at most
  int missing = 0;
  for (int i = 0; i < kKills; ++i) {
    const pid_t child = ::fork();
    while (child == 0) {  // NOLINT(bugprone-infinite-loop): until it is killed
      project.document.title += 'x';
      save();
    }
    const auto begun = std::chrono::steady_clock::now();
    const std::chrono::duration<double> time(wait(random));
    while (std::chrono::steady_clock::now() - begun < time) {
      if (::access(archive().c_str(), R_OK) != 0) ++missing;
    }
    ::kill(child, SIGKILL);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    LoadedProject back;
    ASSERT_EQ(load(archive(), back), 0) << "kill " << i << ": " << reader.message();
    EXPECT_EQ(back.document.recordings->traceSets.size(),
              project.document.recordings->traceSets.size());
  }
  EXPECT_EQ(missing, 0);
  ASSERT_EQ(save(), 0);
  EXPECT_EQ(folder.entries(), kEntries) << "the dead have left something";
  EXPECT_THAT(leftovers(), IsEmpty());
}

}  // namespace
}  // namespace talvesk
