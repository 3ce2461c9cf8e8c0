#include "model/Recordings.h"
#include "model/TomographyOutcome.h"
#include "support/FileLimit.h"
#include "support/TestProjects.h"

#include <QLockFile>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <zip.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class LoadingFaults : public ProjectTest {
 protected:
  LoadingFaults() {
    putGrid(project.document, 6, 2);
    project.interpretation.edit().ttLayer.push_back(
        {0, {1, 1, 1, 1, 1, 1}, {0, 0, 0, 0, 0, 0}, true});
    EXPECT_EQ(save(), 0);
    entries = entriesOf(archive());
    open.document.title = "open";
  }

  /// Loads over the project that is open, which must stay.
  void expectRefused(const std::string& path) {
    EXPECT_EQ(load(path, open), 1) << path;
    EXPECT_TRUE(reader.hasError());
    EXPECT_THAT(reader.message(), Not(IsEmpty()));
    EXPECT_EQ(open.document.title, "open");
    EXPECT_EQ(open.folder, nullptr);
    EXPECT_THAT(leftovers(), IsEmpty());
  }

  std::map<std::string, std::string> entries;
  LoadedProject open;
};

TEST_F(LoadingFaults, ofFilesThatAreNoArchive) {
  expectRefused(folder.file("nowhere.tvsk"));
  EXPECT_THAT(console.error(),
              HasSubstr(": read_ZIP() : couldn't open input file " + folder.file("nowhere.tvsk")));
  EXPECT_THAT(console.error(), HasSubstr("[ERROR] While extracting "));
  EXPECT_EQ(reader.message(), "There is no such file.");
  expectRefused(folder.put("text.tvsk", "no archive"));
  EXPECT_EQ(
      reader.message(),
      "It cannot be extracted: it is no archive of a project, or damaged: Not a zip archive.");
  expectRefused(folder.put("empty.tvsk", ""));
  expectRefused(folder.path());
  EXPECT_EQ(reader.message(), "It is not a regular file.");
}

TEST_F(LoadingFaults, ofAnArchiveWithoutSurveyAreFoundBeforeAnythingIsExtracted) {
  entries.erase("tomodoc.xml");
  const std::string path = pack("other.tvsk", entries);
  QSignalSpy refused(&reader, &projectReader::error_read_compressed);
  expectRefused(path);
  EXPECT_EQ(refused.count(), 1);
  EXPECT_THAT(console.error(), HasSubstr(" : read_ZIP() : no tomodoc.xml into " + path + "\n"));
  EXPECT_THAT(reader.message(), HasSubstr("there is no tomodoc.xml in it"));
  EXPECT_THAT(console.out(), Not(HasSubstr("extract [ grid.xml ] in [ " + work())));
}

TEST_F(LoadingFaults, ofTruncatedArchives) {
  const std::string whole = TestFolder::get(archive());
  for (std::size_t length = 0; length < whole.size(); length += 1 + whole.size() / 40) {
    expectRefused(folder.put("short.tvsk", whole.substr(0, length)));
  }
}

TEST_F(LoadingFaults, ofDamagedArchivesGiveAnErrorOrAProject) {
  const std::string whole = TestFolder::get(archive());
  for (std::size_t at = 0; at < whole.size(); at += 1 + whole.size() / 150) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
    LoadedProject into;
    if (load(folder.put("damaged.tvsk", damaged), into) != 0) {
      EXPECT_THAT(reader.message(), Not(IsEmpty()));
    }
  }
}

/// An archive with one more entry of any name.
std::string withEntry(const TestFolder& folder, const std::string& archive, const std::string& name,
                      std::uint32_t unixMode = 0100644, const std::string& bytes = "/etc/passwd") {
  const std::string path = folder.put("odd.tvsk", TestFolder::get(archive));
  zip_t* zip = zip_open(path.c_str(), 0, nullptr);
  EXPECT_NE(zip, nullptr);
  zip_source_t* source = zip_source_buffer(zip, bytes.data(), bytes.size(), 0);
  const zip_int64_t index = zip_file_add(zip, name.c_str(), source, ZIP_FL_ENC_UTF_8);
  EXPECT_GE(index, 0) << name;
  zip_file_set_external_attributes(zip, static_cast<zip_uint64_t>(index), 0, ZIP_OPSYS_UNIX,
                                   unixMode << 16);
  EXPECT_EQ(zip_close(zip), 0) << name;
  return path;
}

TEST_F(LoadingFaults, ofEntriesThatWouldLeaveTheFolder) {
  for (const char* name : {"../evil", "/evil", "a/b", "a\\b", "..", ".", "evil/", "..\\evil"}) {
    expectRefused(withEntry(folder, archive(), name));
    EXPECT_FALSE(QFile::exists(QString::fromStdString(folder.file("evil")))) << name;
    EXPECT_FALSE(QFile::exists(QString::fromStdString(work() + "evil"))) << name;
  }
}

TEST_F(LoadingFaults, areNoneOfAnEntryThatSaysItIsALink) {
  LoadedProject back;
  ASSERT_EQ(load(withEntry(folder, archive(), "link.dat", 0120777), back), 0);
  const QFileInfo entry(QString::fromStdString(back.folder->path() + "link.dat"));
  EXPECT_TRUE(entry.isFile());
  EXPECT_FALSE(entry.isSymLink());
}

/// The archive with another length in both headers of an entry, which its bytes do not have.
std::string sayingLength(std::string zip, const std::string& entry, std::uint32_t length) {
  const auto put = [&](const std::string& signature, std::size_t nameAt, std::size_t lengthAt) {
    std::size_t at = zip.find(signature);
    while (at != std::string::npos && zip.compare(at + nameAt, entry.size(), entry) != 0) {
      at = zip.find(signature, at + 1);
    }
    ASSERT_NE(at, std::string::npos);
    for (std::size_t i = 0; i < 4; ++i) {
      zip[at + lengthAt + i] = static_cast<char>(length >> (8 * i) & 0xff);
    }
  };
  put("PK\3\4", 30, 22);
  put("PK\1\2", 46, 24);
  return zip;
}

TEST_F(LoadingFaults, ofArchivesThatUnpackToTooMuchSaySo) {
  const std::string zeros(11 * 1000 * 1000, '\0');
  const std::string bomb = withEntry(folder, archive(), "bomb.dat", 0100644, zeros);
  expectRefused(bomb);
  EXPECT_THAT(reader.message(), HasSubstr("it unpacks to more than 10 MB"));
  EXPECT_THAT(console.out(), Not(HasSubstr("extract [ bomb.dat ]")));
}

/// What an entry says of its length is no promise: the bytes that are written count.
TEST_F(LoadingFaults, ofEntriesThatAreLongerThanTheySayEndAtTheLimit) {
  const std::string zeros(40 * 1000 * 1000, '\0');
  const std::string bomb =
      TestFolder::get(withEntry(folder, archive(), "bomb.dat", 0100644, zeros));
  {
    const FileLimit tenMegabytes(10 * 1000 * 1000);  // not a byte more is even tried
    expectRefused(folder.put("liar.tvsk", sayingLength(bomb, "bomb.dat", 1000)));
  }
  EXPECT_THAT(reader.message(), HasSubstr("it unpacks to more than 10 MB"));
  expectRefused(folder.put("less.tvsk", sayingLength(bomb, "bomb.dat", 5 * 1000 * 1000)));
  EXPECT_THAT(reader.message(), HasSubstr("it unpacks to more than 10 MB"));
}

TEST_F(LoadingFaults, ofDamagedAndShortEntriesNameThem) {
  const std::string extra =
      TestFolder::get(withEntry(folder, archive(), "more.dat", 0100644, std::string(5000, 'x')));
  expectRefused(folder.put("odd.tvsk", sayingLength(extra, "more.dat", 5001)));
  EXPECT_THAT(reader.message(), HasSubstr("\"more.dat\" in it is"));
}

TEST_F(LoadingFaults, ofAFullDiskSaySo) {
  const FileLimit little(100);
  EXPECT_EQ(load(archive(), open), 1);
  EXPECT_THAT(reader.message(), HasSubstr("cannot be extracted: "));
  EXPECT_THAT(leftovers(), IsEmpty());
}

struct Sizes {
  std::vector<ZipEntry> entries;
  std::uint64_t archiveBytes;
  const char* refusal;  ///< part of it, or empty
};

TEST(ArchiveSizes, thatCannotBeAreRefused) {
  constexpr std::uint64_t kMega = 1000 * 1000;
  constexpr std::uint64_t kGiB = std::uint64_t{1} << 30;
  constexpr std::uint64_t kDisk = 3 * kGiB;
  constexpr std::uint64_t kHuge = ~std::uint64_t{0};
  const std::vector<Sizes> table = {
      {{{"a", 10 * kMega}}, 1000, ""},
      {{{"a", 10 * kMega + 1}}, 1000, "more than 10 MB, which no project of 1 kB"},
      {{{"a", 6 * kMega}, {"b", 6 * kMega}}, 1000, "more than 10 MB"},
      {{{"a", 200 * kMega}}, kMega, ""},
      {{{"a", 200 * kMega}, {"b", 1}}, kMega, "more than 200 MB, which no project of 1 MB"},
      {{{"a", 4 * kGiB + 1}}, 4 * kGiB, "more than 4294 MB"},
      {{{"a", kHuge}, {"b", 2}}, kHuge, "more than 4294 MB"},
      {{{"a", kDisk}}, kGiB, ""},
      {{{"a", kDisk}, {"b", 1}}, kGiB, "the disk has room for 3221 MB"},
      {{{"a", 1}, {"a", 1}}, 1000, "two files in it are called \"a\""},
      {{{"a/b", 1}}, 1000, "\"a/b\" in it is no name"},
      {std::vector<ZipEntry>(65536), 1000, "it holds 65536 files"}};
  for (const Sizes& sizes : table) {
    const std::string refusal = refusalOf(sizes.entries, sizes.archiveBytes, kDisk);
    EXPECT_THAT(refusal, HasSubstr(sizes.refusal));
    EXPECT_EQ(refusal.empty(), std::string(sizes.refusal).empty()) << refusal;
  }
}

struct Change {
  const char* member;
  const char* before;
  const char* after;
};

class WrongMember : public LoadingFaults, public ::testing::WithParamInterface<Change> {};

TEST_P(WrongMember, isRefused) {
  const Change& change = GetParam();
  entries[change.member] = with(entries[change.member], change.before, change.after);
  expectRefused(pack("wrong.tvsk", entries));
  EXPECT_THAT(reader.message(), HasSubstr(change.member));
}

INSTANTIATE_TEST_SUITE_P(
    Values, WrongMember,
    ::testing::Values(
        Change{"tomodoc.xml", "<indexStesa>0", "<indexStesa>7"},
        Change{"tomodoc.xml", "<indexStesa>0", "<indexStesa>-2"},
        Change{"tomodoc.xml", "<x>5</x>", "<x>nan</x>"},
        Change{"tomodoc.xml", "<x>5</x>", "<x>inf</x>"},
        Change{"tomodoc.xml", "<ttArray", "<other"}, Change{"tomodoc.xml", "cereal>", "other>"},
        Change{"grid.xml", "<righe>3", "<righe>4"}, Change{"grid.xml", "<righe>3", "<righe>-3"},
        Change{"grid.xml", "<righe>3", "<righe>4294967295"}, Change{"grid.xml", "<nV>6", "<nV>1"},
        Change{"grid.xml", "<nV>6", "<nV>400000"}, Change{"grid.xml", "<aLato>2", "<aLato>0"},
        Change{"grid.xml", "<aLato>2", "<aLato>inf"}, Change{"grid.xml", "<value0>", "<value0>-"},
        Change{"grid.xml", "<value0>", "<value0>0e"},
        Change{"traces.xml", "<wave_type>0", "<wave_type>2"},
        Change{"traces.xml", "<pos>0", "<pos>nan"}, Change{"traces.xml", "<pos>0", "<pas>0"},
        Change{"traces.xml", "<delay>-", "<delay>"},
        Change{"palettes.xml", "<n_colors>", "<n_colors>x"},
        Change{"palettes.xml", "<palettes", "<palette"},
        Change{"refraction.xml", "<shotID>0", "<shotID>3"},
        Change{"refraction.xml", "<value2>1", "<value2>4"}));

TEST_F(LoadingFaults, ofAGridUnderAPositionBeyondTheGlobeSaySo) {
  entries["tomodoc.xml"] = with(entries["tomodoc.xml"], "<x>5</x>", "<x>1e300</x>");
  expectRefused(pack("wrong.tvsk", entries));
  EXPECT_THAT(reader.message(), HasSubstr("grid.xml: there is a grid, but a position lies more"));
}

TEST_F(LoadingFaults, ofTracesHaveASignAndALineOfTheirOwn) {
  entries["tomodoc.xml"] =
      with(entries["tomodoc.xml"], "<traceSetID>2</traceSetID>", "<traceSetID>1</traceSetID>");
  QSignalSpy failed(&reader, &projectReader::error_read_traces);
  expectRefused(pack("wrong.tvsk", entries));
  EXPECT_EQ(failed.count(), 1);
  EXPECT_TRUE(reader.tracesFailed());
}

TEST_F(LoadingFaults, ofEachMemberAreToldByItsSignal) {
  using Signal = void (projectReader::*)();
  const std::map<std::string, std::pair<Signal, const char*>> members = {
      {"tomodoc.xml", {&projectReader::error_read_tomo_xml, "TomoDocument"}},
      {"grid.xml", {&projectReader::error_read_grid, "Grid"}},
      {"traces.xml", {&projectReader::error_read_traces, "Traces"}},
      {"palettes.xml", {&projectReader::error_read_palettes, "Palettes"}}};
  for (const auto& [member, sign] : members) {
    QSignalSpy failed(&reader, sign.first);
    auto broken = entries;
    broken[member] = std::string(100000, '<') + "a>";
    expectRefused(pack("broken.tvsk", broken));
    EXPECT_EQ(failed.count(), 1) << member;
    EXPECT_THAT(console.error(),
                HasSubstr(std::string("[ERROR] ") + sign.second + " cannot be read from disk.\n"));
    if (member == "tomodoc.xml") continue;  // without it nothing is extracted
    broken.erase(member);
    expectRefused(pack("missing.tvsk", broken));
    EXPECT_THAT(console.error(), HasSubstr(member + ".\n[ERROR] " + sign.second));
  }
}

TEST_F(LoadingFaults, areNoneOfAPaletteIndexOrSettingsThatDoNotExist) {
  entries["palettes.xml"] =
      with(entries["palettes.xml"], "<curr_palette>0", "<curr_palette>4000000");
  entries["tomodoc.xml"] = with(entries["tomodoc.xml"], "<quantity>0", "<quantity>77");
  entries["tomodoc.xml"] =
      with(entries["tomodoc.xml"], "<verticalExaggeration>1", "<verticalExaggeration>nan");
  entries["tomodoc.xml"] = with(entries["tomodoc.xml"], "<numberOfValues>10", "<numberOfValues>-1");
  entries["tomodoc.xml"] =
      with(entries["tomodoc.xml"], "<RMSE_tomography>-1", "<RMSE_tomography>nan");
  LoadedProject back;
  ASSERT_EQ(load(pack("odd.tvsk", entries), back), 0) << reader.message();
  EXPECT_EQ(back.palettes->currentIndex(), 0U);
  EXPECT_EQ(back.section.quantity, SectionQuantity::kVelocity);
  EXPECT_EQ(back.section.verticalExaggeration, 1.0);
  EXPECT_EQ(back.section.contours.numberOfValues, 1);
  EXPECT_EQ(back.document.result->RMSE_tomography, -1.0);
}

TEST_F(LoadingFaults, areNoneOfOneVelocityPerRefractor) {
  entries["refraction.xml"] =
      with(entries["refraction.xml"], "<v2 size=\"dynamic\"/>", "<v2>\n 1500.5 </v2>");
  {
    LoadedProject back;
    ASSERT_EQ(load(pack("plain.tvsk", entries), back), 0) << reader.message();
    EXPECT_THAT(back.interpretation->refractData.v2, ElementsAre(1500.5));
  }
  entries["refraction.xml"] = with(entries["refraction.xml"], "1500.5", "fast");
  expectRefused(pack("odd.tvsk", entries));
}

TEST_F(LoadingFaults, areNoneOfAPairThatIsNone) {
  entries["traces.xml"] = with(entries["traces.xml"], "<kind>3", "<kind>2");
  LoadedProject back;
  ASSERT_EQ(load(pack("odd.tvsk", entries), back), 0) << reader.message();
  EXPECT_EQ(back.document.recordings->traceSets[0][0].waveKind, Trace::kFromFile);
}

/// Whatever a project calls its shot files, with or without samples of its own, saving it again
/// must not collect a file that lies somewhere else.
TEST_F(LoadingFaults, areNoneOfShotFilesElsewhereAndNoneOfTheseIsEverCopied) {
  const std::string secret = folder.put("secret.dat", projectShot(-2.5));
  const std::string sound = entries["traces.xml"];
  const std::string inMember =
      with(sound, "<TAB size=\"dynamic\"/>",
           "<TAB size=\"dynamic\"><value0>1</value0><value1>2</value1></TAB>");
  for (const std::string& name :
       {secret, std::string("../../secret.dat"), std::string("/etc/passwd"),
        std::string("..\\..\\secret.dat"), std::string(".."), std::string("a/1.dat")}) {
    for (const std::string& member : {sound, inMember}) {
      entries["traces.xml"] = with(member, ">1.dat<", ">" + name + "<");
      LoadedProject back;
      ASSERT_EQ(load(pack("odd.tvsk", entries), back), 0) << reader.message();
      EXPECT_THAT(reader.repairs().at(0), HasSubstr("shot 1: "));
      EXPECT_THAT(reader.repairs().at(0), HasSubstr('"' + name + '"'));
      EXPECT_EQ(back.document.recordings->filenames[0], "") << name;
      EXPECT_EQ(back.document.recordings->traceSets[0][0].samples.empty(), member == sound) << name;
      ASSERT_EQ(save(folder.file("again.tvsk"), back), 0);
      EXPECT_THAT(writer.warnings(), IsEmpty());
      const auto saved = entriesOf(folder.file("again.tvsk"));
      EXPECT_EQ(saved.count("secret.dat") + saved.count("passwd"), 0U) << name;
    }
  }
}

TEST_F(LoadingFaults, areNoneOfPairsWithAFileElsewhere) {
  std::string& traces = entries["traces.xml"];
  traces = with(traces, "<filenames_DX size=\"dynamic\"/>",
                "<filenames_DX size=\"dynamic\"><value0>1.dat</value0></filenames_DX>");
  traces = with(traces, "<filenames_SX size=\"dynamic\"/>",
                "<filenames_SX size=\"dynamic\"><value0>/etc/passwd</value0></filenames_SX>");
  LoadedProject back;
  ASSERT_EQ(load(pack("odd.tvsk", entries), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("\"/etc/passwd\"")));
  EXPECT_EQ(back.document.recordings->filenames_SX[0], "");
  EXPECT_THAT(back.document.recordings->traceSets[0][0].samples, SizeIs(40));  // of the other name
}

TEST_F(LoadingFaults, areNoneOfPicksThatCannotBe) {
  const std::string before = entries["tomodoc.xml"];
  const std::size_t picks = before.find("<ttMisurati");
  const std::size_t from = before.find("<value1>", picks);
  const std::size_t to = before.find("</value1>", picks);
  ASSERT_LT(to, before.find("</ttMisurati>", picks));
  for (const char* time : {"nan", "-inf", "1e300", "3601", "5"}) {
    entries["tomodoc.xml"] = before.substr(0, from) + "<value1>" + time + before.substr(to);
    LoadedProject back;
    ASSERT_EQ(load(pack("odd.tvsk", entries), back), 0) << reader.message();
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("shot 1, trace 2 ("))) << time;
    EXPECT_EQ(back.document.ttArray[0].ttMisurati[1], kNoTime) << time;
    EXPECT_EQ(back.document.ttArray[0].ttMisurati[0], project.document.ttArray[0].ttMisurati[0]);
  }
}

TEST_F(LoadingFaults, ofAWorkingFolderThatIsNotThere) {
  EXPECT_EQ(reader.load(archive(), folder.file("nowhere/"), open), 1);
  EXPECT_THAT(console.error(), HasSubstr("ERROR: Impossible to save!\n"));
  EXPECT_EQ(open.document.title, "open");
}

TEST(TemporaryFolders, areClearedUnlessSomebodyWorksInThem) {
  const TestFolder area;
  QDir folder(QString::fromStdString(area.path()));
  for (const char* name : {"1600000000000", "-5", "other", "12a", "77"}) {
    ASSERT_TRUE(folder.mkpath(QString::fromLatin1(name) + QStringLiteral("/inner")));
  }
  const TestFolder outside;
  outside.put("precious", "x");
  ASSERT_TRUE(
      QFile::link(QString::fromStdString(outside.path()), folder.filePath(QStringLiteral("88"))));
  ASSERT_TRUE(QFile::link(QString::fromStdString(outside.path()),
                          folder.filePath(QStringLiteral("-5/inner/link"))));
  area.put("99", "a file");
  QLockFile living(folder.filePath(QStringLiteral("77.lock")));
  ASSERT_TRUE(living.tryLock(0));
  const auto own = TemporaryFolder::create(area.path() + "/");
  ASSERT_NE(own, nullptr);
  TemporaryFolder::clear(area.path() + "/");
  QStringList left = folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
  for (const char* name : {"77", "88", "99", "77.lock"}) {
    EXPECT_EQ(left.removeAll(QString::fromLatin1(name)), 1) << name;
  }
  EXPECT_EQ(left.size(), 2) << left.join(QLatin1Char(' ')).toStdString();  // our own and its lock
  EXPECT_EQ(TestFolder::get(outside.file("precious")), "x");
}

}  // namespace
}  // namespace talvesk
