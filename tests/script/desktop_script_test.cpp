#include "script/desktop_script.h"

#include <gtest/gtest.h>

#include <sstream>

#include "script/no_fonts.h"

namespace trelvo {
namespace {

struct DesktopScriptTest : testing::Test {
  std::string printed() {
    output.flush();
    return stream.str();
  }
  std::ostringstream stream;
  Output output{stream};
  NoFonts fonts;
  DesktopScript desktop{output, fonts};
};

TEST_F(DesktopScriptTest, BoxesTakeTheAnswersInOrder) {
  desktop.answers.boxes = {answer_no, answer_ok, answer_yes};
  EXPECT_EQ(desktop.message_box("a", Buttons::yes_no_cancel), answer_no);
  EXPECT_EQ(desktop.message_box("a", Buttons::yes_no_cancel), answer_cancel) << "no such button";
  EXPECT_EQ(desktop.message_box("a \"b\"\nc", Buttons::ok), answer_ok) << "no such button";
  EXPECT_EQ(desktop.message_box("a", Buttons::yes_no_cancel), answer_cancel) << "none left";
  EXPECT_EQ(desktop.message_box("a", Buttons::ok), answer_ok) << "none left";
  EXPECT_EQ(printed(),
            "msgbox \"a\" yesnocancel -> no\n"
            "msgbox \"a\" yesnocancel -> cancel\n"
            "msgbox \"a \\\"b\\\"\\nc\" ok -> ok\n"
            "msgbox \"a\" yesnocancel -> cancel\n"
            "msgbox \"a\" ok -> ok\n");
}

TEST_F(DesktopScriptTest, FileDialogs) {
  desktop.answers.files = {"x.DIS", std::nullopt};
  CommonDialog dialog;
  dialog.Filter = "A|*.A|";
  EXPECT_TRUE(desktop.show_save(dialog));
  EXPECT_FALSE(desktop.show_open(dialog));
  EXPECT_FALSE(desktop.show_open(dialog));
  EXPECT_EQ(dialog.FileName, "x.DIS");
  EXPECT_EQ(printed(),
            "filedialog save filter=\"A|*.A|\" name=\"\" -> \"x.DIS\"\n"
            "filedialog open filter=\"A|*.A|\" name=\"x.DIS\" -> cancel\n"
            "filedialog open filter=\"A|*.A|\" name=\"x.DIS\" -> cancel\n");
}

TEST_F(DesktopScriptTest, FontDialogs) {
  FontDialog courier;
  courier.FontName = "Courier";
  courier.FontSize = 12.5F;
  courier.FontBold = true;
  courier.color = rgb(1, 2, 3);
  desktop.answers.fonts = {FontAnswer{courier, false}, FontAnswer{courier, true}};
  FontDialog dialog;
  dialog.FontName = "Arial";
  dialog.FontSize = 10;
  dialog.color = 9;
  EXPECT_TRUE(desktop.show_font(dialog));
  EXPECT_EQ(dialog.FontName, "Courier");
  EXPECT_EQ(dialog.color, 9);
  EXPECT_TRUE(desktop.show_font(dialog));
  EXPECT_EQ(dialog.color, rgb(1, 2, 3));
  EXPECT_FALSE(desktop.show_font(dialog));
  EXPECT_EQ(printed(),
            "fontdialog \"Arial\" 10 -> \"Courier\" 12.5 bold\n"
            "fontdialog \"Courier\" 12.5 bold -> \"Courier\" 12.5 bold 1 2 3\n"
            "fontdialog \"Courier\" 12.5 bold -> cancel\n");
}

TEST_F(DesktopScriptTest, ModalFormsNestAndGiveTheKeyboardBack) {
  Form below("below");
  Form above("above");
  TextBox box(below, "Text1");
  desktop.use_dialog = [&](Form& form) {
    if (&form != &below) return;
    desktop.set_focus(&box);
    desktop.show_modal(above);
    EXPECT_EQ(desktop.focus(), &box);
    EXPECT_EQ(desktop.dialogs(), std::vector<Form*>{&below});
  };
  desktop.show_modal(below);
  EXPECT_EQ(desktop.focus(), nullptr);
  EXPECT_FALSE(below.loaded());
  EXPECT_EQ(printed(), "show below\nshow above\nunload above\nunload below\n");
}

TEST_F(DesktopScriptTest, ProgressByTenths) {
  Form form("barprog");
  ProgressBar bar(form, "ProgressBar1");
  bar.Max = 50;
  desktop.use_dialog = [&](Form&) {
    for (const int value : {4, 5, 9, 22, 0, 5}) bar.Value = static_cast<float>(value);
  };
  desktop.show_modal(form);
  bar.Value = 50;
  EXPECT_EQ(printed(),
            "show barprog\nprogress barprog 10\nprogress barprog 20\nprogress barprog 30\nprogress barprog 40\n"
            "progress barprog 10\nunload barprog\n");
}

}  // namespace
}  // namespace trelvo
