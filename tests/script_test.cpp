// The panel script: how lines are read, what names and values are, how a script ends.
#include "script/commands.h"
#include "script/dump.h"
#include "script/lexer.h"
#include "script/reading.h"
#include "script/session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include <sys/stat.h>
#include <unistd.h>

namespace hustle::script {
namespace {

struct ended {
    int status;
    std::string out, err;
};

ended run(std::string_view text) {
    std::ostringstream out, err;
    const int status = run_script(text, "s", out, err);
    return {status, out.str(), err.str()};
}

TEST(Script, ReadsWordsTextsAndComments) {
    const auto w = words_of("  set\tx \"a # \\\"b\\\\\\r\\n£\" # the rest \"");
    ASSERT_EQ(w.size(), 3U);
    EXPECT_EQ(w[1].text, "x");
    EXPECT_FALSE(w[1].quoted);
    EXPECT_EQ(w[2].text, "a # \"b\\\r\n£");
    EXPECT_EQ(written(w[2]), "\"a # \\\"b\\\\\\r\\n£\"");
    EXPECT_TRUE(words_of("   # nothing").empty());
    for (const char* bad : {"\"open", "\"\\t\"", "a\"b\"", "\"a\"b", "\"\xC3\"", "\xFF"})
        EXPECT_THROW(words_of(bad), script_error) << bad;
}

TEST(Script, EndsAtTheFirstLineThatMakesNoSense) {
    struct {
        const char *line, *said;
    } const bad[] = {
        {"jump", "unknown command jump"},
        {"get nothing", "unknown name nothing"},
        {"press main.nothing", "unknown element main.nothing"},
        {"load nowhere", "unknown screen nowhere"},
        {"call main.rolldice", "unknown operation main.rolldice"},
        {"set credits", "the form is: set NAME VALUE"},
        {"set credits \"20\"", "credits takes a number, not \"20\""},
        {"set credits 1e3", "credits takes a number, not 1e3"},
        {"set credits ~3", "credits takes a number, not ~3"},
        {"set nudges 1.5", "nudges takes a whole number, not 1.5"},
        {"set nudges 40000", "nudges takes a number from -32768 to 32767, not 40000"},
        {"set award jackpot", "award takes a text in double quotes, not jackpot"},
        {"expect main.start.art \"title\"", "main.start.art takes the name of a picture, not \"title\""},
        {"expect main.start.enabled yes", "main.start.enabled takes true or false, not yes"},
        {"set front main", "front can only be read"},
        {"set drawn 0", "drawn can only be read"},
        {"set main.butflash.interval 0", "main.butflash.interval takes a number from 1 to 2147483647, not 0"},
        {"set feature.boardpos 25", "feature.boardpos takes a number from 0 to 24, not 25"},
        {"set feature.movepos -1", "feature.movepos takes a number from 0 to 24, not -1"},
        {"set feature.shockpos 11", "feature.shockpos takes a number from 0 to 10, not 11"},
        {"set feature.cashrung 11", "feature.cashrung takes a number from 0 to 10, not 11"},
        {"set Highscore.flashrow 11", "Highscore.flashrow takes a number from 0 to 10, not 11"},
        {"run 86400001", "run takes a number from 0 to 86400000, not 86400001"},
        {"set award \"\x1b[2J\"", "a control character stands in the line"},
        {"get \xe2\x80\xae!", "unknown name ?!"},
        {"reel 4 1", "reel takes a number from 1 to 3, not 4"},
        {"type main.start \"x\"", "main.start is no text box"},
        {"type Entername.Text1 x", "type takes a text in double quotes, not x"},
        {"trace loud", "trace takes on or off, not loud"},
        {"clock 86400", "clock takes seconds since midnight, below 86400, not 86400"},
        {"set pcent eighty", "pcent takes a number, not eighty"},
        {"press main.start extra", "the form is: press SCREEN.ELEMENT"},
        {"answer perhaps", "answer takes yes, no or ok, not perhaps"},
        {"file other.dat", "file takes game.dat or hscore.dat, not other.dat"},
        {"file game.dat\n1\n2", "file has no end"},
        {"draws 17\npress main.start\nuntil reel1pos 1",
         "the queued draw 17 is no result of a draw of 1 to 16"},
    };
    for (const auto& [line, said] : bad) {
        const ended e = run(std::string(line) + "\nget credits\n");
        EXPECT_EQ(e.status, 2) << line;
        EXPECT_NE(e.err.find(said), std::string::npos) << line << " told " << e.err;
        EXPECT_EQ(e.out, "") << line;
    }
    EXPECT_EQ(run("\xEF\xBB\xBFget credits\r\n").out, "credits = 20\n")
        << "as another system's editor saves it";
    EXPECT_EQ(run("# one\n\njump").err, "s:3: unknown command jump\n");
    EXPECT_EQ(run("boot\nclock 5").err, "s:2: clock is only taken before the boot\n");
    EXPECT_EQ(run("draws 17\npress main.start\nrun 9\nuntil reel1pos 1").err.substr(0, 4), "s:4:");
}

// Scripts come with fault reports, from anyone.
TEST(Script, TakesOnlyWholeTextsOfABoundedSize) {
    std::string text;
    EXPECT_EQ(read_script_file("/", text), "is a folder");
    EXPECT_EQ(read_script_file("nowhere.txt", text), "cannot be read");
    EXPECT_EQ(read_script_file("/dev/zero", text), "is a pipe or a device, not a file");
    const std::string pipe = ::testing::TempDir() + "pipe" + std::to_string(::getpid());
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(read_script_file(pipe, text), "is a pipe or a device, not a file") << "nobody writes to it";
    std::filesystem::remove(pipe);
    std::istringstream seven("1234567"), six("123456");
    EXPECT_EQ(read_script(seven, text, 6), "is longer than 6 bytes");
    EXPECT_EQ(read_script(six, text, 6), "");
    std::istringstream binary(std::string("run 5\0", 6)), plain("run 5");
    EXPECT_EQ(read_script(binary, text), "is no text");
    EXPECT_EQ(read_script(plain, text), "");
    EXPECT_EQ(text, "run 5");
    EXPECT_EQ(printable("a\x1b[2J\x7f\xc2\x9b£\n"), "a?[2J??£?");
    EXPECT_EQ(printable(std::string(500, 'x')), std::string(400, 'x') + "...");
}

TEST(Script, GoesOnAfterWhatDoesNotHold) {
    const ended e =
        run("expect credits 21\nexpect credits ~20.005\nexpect front \"main\"\nexpect front main\n"
            "until nudges 3 500\nget main.lampstep.x\n");
    EXPECT_EQ(e.err, "s:1: expected credits = 21, found 20\ns:5: expected nudges = 3, found 0\n"
                     "s:6: unknown name main.lampstep.x\n");
    EXPECT_EQ(run("expect award \"x\"\nget lampstep").err, "s:1: expected award = \"x\", found \"\"\n");
    EXPECT_EQ(run("expect award \"x\"").status, 1);
    // A failed `until` leaves the clock where its time was over: at 850 ms butflash has ticked 5 times.
    EXPECT_EQ(run("until nudges 3 500\nget lampstep").out, "lampstep = 5\n");
    EXPECT_EQ(run("until lampstep 3\nuntil lampstep 3 0").status, 0);
}

TEST(Script, NamesAreSortedAndEachStandsOnce) {
    std::ostringstream out;
    const session s(out);
    const auto all = s.known.all();
    for (std::size_t i = 1; i < all.size(); ++i)
        EXPECT_LT(all[i - 1].name, all[i].name);
    EXPECT_GT(all.size(), 1000U);
}

TEST(Script, TakesBackEveryValueThatItDumps) {
    const ended first = run("press main.start\nrun 9000\nload feature\nset pcent 80.19802\ndump");
    ASSERT_EQ(first.status, 0);
    EXPECT_NE(first.out.find("\npcent = 80.19802\n"), std::string::npos);
    EXPECT_NE(first.out.find("\nfeature.square5.art = boxlight5\n"), std::string::npos);
    EXPECT_NE(first.out.find("\nmain.title = \"Hoard Hustle v2.02\"\n"), std::string::npos);
    std::ostringstream unused;
    session s(unused);
    std::istringstream lines(first.out);
    std::string again = "load feature\n";
    for (std::string line; std::getline(lines, line);) {
        const std::size_t middle = line.find(" = ");
        const bool settable = static_cast<bool>(s.known.find(line.substr(0, middle)).store);
        again += (settable ? "set " : "expect ") + line.substr(0, middle) + line.substr(middle + 2) + "\n";
    }
    const ended second = run(again + "dump");
    EXPECT_EQ(second.err, "");
    EXPECT_EQ(second.out, first.out);
}

// Two ways to the same state have one hash; the least lamp moves it.
TEST(Script, HashIsOfTheDumpAlone) {
    std::ostringstream unused;
    session s(unused);
    s.boot();
    const std::string there = hash_text(s.known);
    EXPECT_EQ(run("press main.soundon\nforget\nhash").out, "hash = " + there + "\n");
    EXPECT_NE(run("set main.numberone.back 1\nhash").out, "hash = " + there + "\n");
    std::uint64_t h = 0xcbf29ce484222325ULL;
    for (const char c : dump(s.known))
        h = (h ^ static_cast<unsigned char>(c)) * 0x100000001b3ULL;
    EXPECT_EQ(hash(s.known), h);
}

TEST(Script, TellsTheWayOfTheFocus) {
    EXPECT_EQ(run("boot\ntrace on\npress main.gstat\nget front\nfocus main\nfocus main\nkey 65 main\n"
                  "key 65 About\nclose About\npress About.cmdOK\npress main.toplogo\nunload About\n"
                  "set credits 7\ncall main.pairhold\n")
                  .out,
              "@350 press main.gstat\n  front = \"statistics\"\n  statistics.Timer1.running = true\n"
              "  statistics.Timer2.running = true\n  statistics.loaded = true\nfront = \"statistics\"\n"
              "@350 show main\n  front = \"main\"\n@350 focus main\n@350 blur statistics\n"
              "  statistics.Timer1.running = false\n  statistics.Timer2.running = false\n"
              "  statistics.loaded = false\n@350 show main\n@350 key 65 main\n@350 key 65 About ignored\n"
              "@350 close About ignored\n@350 press About.cmdOK ignored\n@350 press main.toplogo ignored\n"
              "@350 unload About ignored\n@350 call main.pairhold\n");
}

TEST(Script, KeepsLogsFilesAndAnswers) {
    EXPECT_EQ(run("file hscore.dat\n 1\nend x\nend\nget file.hscore.dat file.game.dat\n").out,
              "file.hscore.dat = \"\"\nfile.game.dat = \"\"\n")
        << "the damaged file was set aside";
    EXPECT_EQ(run("forget\nget midi\nforget\nset bank 0\npress main.transfer\nset soundstate \"off\"\n"
                  "press main.start\nget midi boxes sounds drawn")
                  .out,
              "midi = \"open \\\"sounds/hustle.mid\\\" type sequencer  alias mid1\"\nmidi = \"\"\n"
              "boxes = \"Nothing in Bank..|You have no credits to insert!  Continue your game!\"\n"
              "sounds = \"\"\ndrawn = 0\n");
    EXPECT_EQ(run("trace on\nboot\nanswer yes\npress main.newgame\n").out.find("yesno -> yes") ==
                  std::string::npos,
              false);
}

TEST(Script, TakesNoTextThatNobodyCouldPaint) {
    const std::string fits(4096, 'W'), longer(4097, 'W');
    for (const std::string& line :
         {"set main.numberone.caption \"" + longer + "\"", "type Entername.Text1 \"" + longer + "\"",
          "file hscore.dat\n" + longer + "\nend"})
        EXPECT_NE(run(line).err.find("a text of at most 4096 bytes"), std::string::npos)
            << line.substr(0, 30);
    EXPECT_EQ(run("set main.numberone.caption \"" + fits + "\"").status, 0);
    EXPECT_EQ(run("set main.start.top -100001").err,
              "s:1: main.start.top takes a number from -100000 to 100000, not -100001\n");
}

// A sound every millisecond for a day, as a stranger's script may ask for.
TEST(Script, WritesALogNoFurtherThanItsLength) {
    std::ostringstream unused;
    session s(unused);
    while (s.w.sounds.size() <= longest_log)
        s.w.play(sound::nudgenow);
    const std::size_t there = s.w.sounds.size();
    s.w.play(sound::nudgenow);
    EXPECT_EQ(s.w.sounds.size(), there);
    const std::string loud =
        "set main.trailskill.interval 1\nset main.trailskill.running true\nrun 1500000\n";
    for (const char* asked : {"get credits sounds", "expect sounds \"\"", "until sounds \"\""})
        EXPECT_EQ(run(loud + asked).err,
                  "s:4: sounds has grown longer than 16777216 bytes; forget empties it\n");
    EXPECT_EQ(run(loud + "forget\nget sounds credits").out, "sounds = \"\"\ncredits = 20\n");
}

TEST(Script, HoldsStillAfterTheExit) {
    const ended e = run("trace on\nclose main\nset credits 3\nrun 1000\npress main.start\nget credits\n"
                        "until credits 3 10\n");
    EXPECT_NE(e.out.find("  exit\n"), std::string::npos);
    EXPECT_EQ(e.out.substr(e.out.size() - 13), "credits = 20\n") << e.out;
    EXPECT_EQ(e.status, 1);
}

} // namespace
} // namespace hustle::script
