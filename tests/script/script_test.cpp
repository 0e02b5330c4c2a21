#include "script/script.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>

#include "script/no_fonts.h"

namespace trelvo {
namespace {

struct Ran {
  int status;
  std::string output;
  std::string errors;
};

// A program's folder of its own, gone at the end.
class Folder {
 public:
  Folder() : path_(std::filesystem::path(testing::TempDir()) / ("trelvo_script_" + std::to_string(getpid()))) {
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { std::filesystem::remove_all(path_); }
  std::string file(const char* name) const { return (path_ / name).string(); }

  Ran ran(const std::string& script) const {
    std::istringstream lines(script);
    std::ostringstream output;
    std::ostringstream errors;
    NoFonts fonts;
    const int status = esegui_script(lines, output, errors, path_.string(), fonts);
    return {status, output.str(), errors.str()};
  }

 private:
  std::filesystem::path path_;
};

Ran ran(const std::string& script) { return Folder().ran(script); }

const std::string one = "menu gestfile 1\n";
const std::string shown_one = "show distipo 1\n";

TEST(Script, EndsAtTheFirstLineThatCannotBeDone) {
  struct {
    const char* line;
    const char* reason;
  } const cases[] = {
      {"walk", "unknown command \"walk\""},
      {"Menu opdis 1", "unknown command \"Menu\""},
      {"start \"a.DIS\"", "unknown command \"start\""},
      {"end", "unknown command \"end\""},
      {"left 1", "\"left\" wants more"},
      {"left 1 2 3", "\"left\" wants less"},
      {"left 1,5 2", "\"1,5\" is no number"},
      {"key x", "\"x\" is no whole number"},
      {"echo \"a", "quotation without its end"},
      {"repeat 2 walk", "unknown command \"walk\""},
      {"repeat 2", "\"repeat\" wants more"},
      {"menu opdis 8", "no menu item \"opdis(8)\""},
      {"menu opdis", "no menu item \"opdis\""},
      {"menu videoscritt.file 3", "no open form \"videoscritt\""},
      {"toolbar 1 6", "no button 6 in \"frmMain.Toolbar1(1)\""},
      {"toolbar 5 1", "no control \"frmMain.Toolbar1(5)\""},
      {"label 12", "no control \"frmMain.Label12\""},
      {"get frmMain.Text9.Text", "no control \"frmMain.Text9\""},
      {"get frmMain.Text1.Colour", "no property \"frmMain.Text1.Colour\""},
      {"get distipo.Colour", "no property \"distipo.Colour\""},
      {"get zoomp.Text1.Text", "no open form \"zoomp\""},
      {"get frmMain", "no property \"frmMain\""},
      {"set frmMain.Label8.ForeColor red", "\"red\" is no number"},
      {"type frmMain.Label1 a", "\"frmMain.Label1\" is no text box"},
      {"keypress frmMain.Label1 13", "\"frmMain.Label1\" takes no keys"},
      {"moveon frmMain.Text1 1 1", "\"frmMain.Text1\" is no picture box"},
      {"state rapscal", "no variable \"rapscal\""},
      {"state spessoristampa(16)", "no index 16 in \"spessoristampa\""},
      {"state barra(0)", "no index 0 in \"barra\""},
      {"record 9", "no command record 9"},
      {"objects linea", "no class \"linea\""},
      {"activate 2", "no document 2"},
      {"size 100 150", "a size is a multiple of 15, not 100"},
      {"movestrip 2", "no strip 2"},
      {"pixel 1000 0", "no pixel 1000 0"},
      {"picture \"a.jpg\"", "no picture format for \"a.jpg\""},
      {"trace maybe", "a trace is on or off"},
      {"answer maybe", "no answer \"maybe\""},
      {"locale de_DE", "no locale \"de_DE\""},
      {"color 1 2", "a colour has three parts"},
      {"color 1 2 256", "a part of a colour is 0 to 255, not 256"},
      {"font Arial 10 fat", "unknown font attribute \"fat\""},
      {"paper 210", "no paper \"210\""},
      {"paper 210 297 200 297", "the sheet is smaller than its printable area"},
      {"time 86400", "no time of day 86400"},
      {"wait -1", "time does not run back"},
      {"dialog zoomp\necho a", "\"dialog\" without its \"end\""},
  };
  for (const auto& c : cases) {
    const Ran r = ran("\n# comment\n" + one + c.line + "\necho not reached\n");
    EXPECT_EQ(r.status, 1) << c.line;
    EXPECT_EQ(r.output, shown_one) << c.line;
    EXPECT_EQ(r.errors, "line 4: " + std::string(c.reason) + "\n") << c.line;
  }
}

TEST(Script, LinesThatNeedADocument) {
  for (const char* line : {"left 1 1", "move 1 1", "key 13", "keydown 117", "size 150 150", "close", "objects",
                           "record 0", "state rapscala", "get distipo.Caption", "pixel 0 0", "movestrip 3"}) {
    const Ran r = ran(line);
    EXPECT_EQ(r.status, 1) << line;
    EXPECT_EQ(r.errors, "line 1: no document is open\n") << line;
  }
}

TEST(Script, LinesThatRun) {
  struct {
    const char* lines;
    const char* output;
  } const cases[] = {
      {"", ""},
      {"\r\n  # a\r\n\t\r\necho a\r\n", "a\n"},
      {"echo one \"two  three\" \"\\\"\\n\"", "one two  three \"\n\n"},
      {"echo", "\n"},
      {"repeat 2 repeat 2 echo \"a b\"", "a b\na b\na b\na b\n"},
      {"repeat 0 walk", ""},
      {"wait 1.5\ntime 86399\nwait 2\npaper none\npaper 200 280 210 297\nprintto \"a b.pdf\"", ""},
      {"color 1 2 3\ncolor cancel\nfont \"Arial\" 10 bold strikeout 1 2 3\nfont cancel\nfile cancel\nanswer ok", ""},
      {"locale en_US\nlocale C\nlocale it_IT", ""},
      {"state focus\nstate pointer\nstate colorelineadef\nstate nomidocumenti(0)",
       "focus = frmMain\npointer = 0\ncolorelineadef = 0\nnomidocumenti(0) = \"\"\n"},
      {"set frmMain.Text1.Text \"a \\\"b\\\"\"\nget frmMain.Text1.Text", "frmMain.Text1.Text = \"a \\\"b\\\"\"\n"},
      {"press frmMain.Text1", "disabled frmMain.Text1\n"},
      {"toolbar 1 1\nleave\nlabel 8", ""},
  };
  for (const auto& c : cases) {
    const Ran r = ran(c.lines);
    EXPECT_EQ(r.status, 0) << c.lines;
    EXPECT_EQ(r.output, c.output) << c.lines;
    EXPECT_EQ(r.errors, "") << c.lines;
  }
}

TEST(Script, TypedKeysEditTheBox) {
  const Ran r =
      ran("set frmMain.Text4.Text \"kept\"\n"
          "type frmMain.Text4 \"x\"\n"
          "get frmMain.Text4.Text\n"
          "type frmMain.Text1 \"caffè €\"\n"
          "get frmMain.Text1.Text\n"
          "keypress frmMain.Text1 8\n"
          "keypress frmMain.Text1 232\n"
          "get frmMain.Text1.Text\n"
          "set frmMain.Text1.SelStart 1\n"
          "set frmMain.Text1.SelLength 4\n"
          "keypress frmMain.Text1 80\n"
          "get frmMain.Text1.Text\n"
          "get frmMain.Text1.SelStart\n");
  EXPECT_EQ(r.output,
            "frmMain.Text4.Text = \"kept\"\n"  // locked
            "frmMain.Text1.Text = \"caffè €\"\n"
            "frmMain.Text1.Text = \"caffè è\"\n"
            "frmMain.Text1.Text = \"cP è\"\n"
            "frmMain.Text1.SelStart = 2\n");
}

TEST(Script, DialogBlocks) {
  const std::string open = "menu selezoom 4\n";
  const std::string drawing = one + "menu opdis 1\nleft 1 1\nleft 2 2\nkey 27\n";
  const std::string window = "show zoomp\nunload zoomp\n";
  struct {
    std::string lines;
    std::string output;
  } const cases[] = {
      {open, window},
      // Each block serves one showing, in order, and only its own form.
      {"dialog zoomp\necho 1\nend\ndialog other\necho no\nend\ndialog zoomp\necho 2\nend\n" + open + open + open,
       "show zoomp\n1\nunload zoomp\nshow zoomp\n2\nunload zoomp\n" + window},
      // Lines left over when the form closes are skipped, blocks among them.
      {"dialog zoomp\npress zoomp.Command2\ndialog zoomp\necho no\nend\necho no\nend\n" + open + open, window + window},
      // A block given within another waits for the next showing.
      {"dialog zoomp\n  dialog zoomp\n    echo inner\n  end\n  echo outer\nend\n" + open + open,
       "show zoomp\nouter\nunload zoomp\nshow zoomp\ninner\nunload zoomp\n"},
  };
  for (const auto& c : cases) {
    const Ran r = ran(drawing + c.lines);
    EXPECT_EQ(r.errors, "") << c.lines;
    EXPECT_EQ(r.output, shown_one + c.output) << c.lines;
  }
  const Ran failing = ran(drawing + "dialog zoomp\necho a\nwalk\nend\n" + open + "echo no\n");
  EXPECT_EQ(failing.status, 1);
  EXPECT_EQ(failing.output, shown_one + "show zoomp\na\n");
  EXPECT_EQ(failing.errors, "line 8: unknown command \"walk\"\n");
}

TEST(Script, StartOpensAFile) {
  const Folder folder;
  const std::string path = folder.file("a b.DIS");
  const Ran saved =
      folder.ran(one + "menu opdis 1\nleft 1 1\nleft 2 3\nkey 27\nfile \"" + path + "\"\nmenu opfile 4\nobjects");
  ASSERT_EQ(saved.errors, "");
  const std::string objects = saved.output.substr(saved.output.find("Linea 1"));
  const std::string look = "\nstate ndocumenti\nget distipo.Caption\nobjects\n";
  const std::string found = shown_one + "ndocumenti = 1\ndistipo.Caption = \"" + path + "\"\n" + objects;
  EXPECT_EQ(folder.ran("start \"" + path + "\"" + look).output, found);
  EXPECT_EQ(folder.ran("# comment\n\nstart \"\\\"" + path + "\\\"\"" + look).output, found) << "in quotation marks";
  EXPECT_EQ(folder.ran("start \"" + folder.file("b.DIS") + "\"\nstate ndocumenti").output, "ndocumenti = 0\n");
}

TEST(Script, PicturesOfTheKeptPicture) {
  const Folder folder;
  const std::string bmp = folder.file("a.bmp");
  const std::string png = folder.file("a.PNG");
  const Ran r = folder.ran(one + "size 1500 750\nmove 1 1\npicture \"" + bmp + "\"\npicture \"" + png +
                           "\"\npicture \"" + folder.file("no/a.bmp") + "\"\n");
  EXPECT_EQ(r.errors, "line 6: cannot write \"" + folder.file("no/a.bmp") + "\"\n");
  EXPECT_EQ(std::filesystem::file_size(bmp), 54U + 50 * 300);
  EXPECT_GT(std::filesystem::file_size(png), 50U * 301);
}

TEST(Script, ScreenShowsOverlaysAndThePictureDoesNot) {
  const Ran r =
      ran(one + "label 9\nmove 10 10\npixel 200 190\nscreenpixel 200 190\nmovestrip 3\nscreenpixel 200 190\n");
  EXPECT_EQ(r.output, shown_one +
                          "pixel 200 190 = FFFFFF\n"
                          "screenpixel 200 190 = 800080\n"
                          "screenpixel 200 190 = FFFFFF\n");
}

TEST(Script, TraceNamesTheDocument) {
  const Ran r = ran(one +
                    "label 9\n"
                    "trace on\n"
                    "label 9\n"
                    "label 9\n"
                    "trace off\n"
                    "menu opdis 1\n"
                    "left 0 0\n"
                    "left 5 5\n"
                    "trace on\n"
                    "left 5 10\n"
                    "trace off\n"
                    "left 6 10\n");
  const std::string grid_off = "distipo.Cls\n";
  EXPECT_TRUE(r.output.starts_with(shown_one +
                                   "distipo.Cls\ndistipo.PSet 0,0 color=8388736\ndistipo.PSet 0,300 color=8388736\n"))
      << r.output;
  EXPECT_TRUE(r.output.ends_with("color=8388736\n" + grid_off +
                                 "distipo.Line 1500,1500 1500,3000 color=0 DrawWidth=1 DrawStyle=0\n"))
      << r.output;
}

}  // namespace
}  // namespace trelvo
