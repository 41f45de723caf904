// The interface for C, in the library without windows.
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <thread>

#include "lumenote/lumenote.h"

namespace {

struct InterfaceTest : testing::Test {
  InterfaceTest() { Set("pCouleurFen", "0"); }
  ~InterfaceTest() override { lumenote_destroy(control); }

  int Set(const char* property, const char* value) {
    return lumenote_set(control, property, value);
  }
  std::string Note() const { return lumenote_get(control, "pStrOrchm"); }

  LumenoteControl* control = lumenote_create();
};

TEST_F(InterfaceTest, ANoteGoesInAndOut) {
  EXPECT_EQ(Set("pStrOrchm", "Œillet à 12 €"), 0);
  EXPECT_EQ(Set("pTitreFenêtre", "Dianthus"), 0);
  EXPECT_EQ(lumenote_show(control, 0), 0);
  EXPECT_EQ(lumenote_pump(0), 0);
  EXPECT_EQ(Note(), "Œillet à 12 €");
  EXPECT_EQ(Set("NoteText", "T:\\ 12 m, sous chênes"), 0);
  EXPECT_EQ(Note(), "T:\\ 12 m, sous chênes");
}

TEST_F(InterfaceTest, ErrorsComeWithTheirNumberMemberAndText) {
  const auto show = [](const char* colour) {
    return [=](LumenoteControl* control) {
      lumenote_set(control, "pCouleurFen", colour);
      return lumenote_show(control, 0);
    };
  };
  const auto set = [](const char* name, const char* value) {
    return [=](LumenoteControl* control) { return lumenote_set(control, name, value); };
  };
  const auto text = [](const char* result) { return result ? 0 : lumenote_last_error()->number; };
  struct {
    std::function<int(LumenoteControl*)> call;
    int number;
    const char* member;
  } const rows[] = {
      {show("rouge"), 13, "pCouleurFen"},
      {show("99999999999"), 6, "pCouleurFen"},
      {set("pTitreFenetre", "x"), 5, "pTitreFenetre"},
      {set("pTitreFenêtre", nullptr), 5, ""},
      {set(nullptr, "x"), 5, ""},
      {set("NoteText", "ch\xEAnes"), 5, "NoteText"},
      {[](auto*) {
         LumenoteControl* gone = lumenote_create();
         lumenote_destroy(gone);
         return lumenote_show(gone, 0);
       },
       5, ""},
      {[](auto*) {
         LumenoteControl* gone = lumenote_create();
         lumenote_destroy(gone);
         lumenote_destroy(gone);
         return lumenote_last_error()->number;
       },
       5, ""},
      {set("NotePath", "orchis"), 76, "NotePath"},
      {[&](auto* its) { return text(lumenote_get(its, "pCouleurFen")); }, 5, "pCouleurFen"},
      {[](auto*) { return lumenote_show(nullptr, 0); }, 5, ""},
      {[&](auto*) { return text(lumenote_drive_path("a\\b")); }, 76, ""},
      {[&](auto*) { return text(lumenote_native_path("Q:\\x")); }, 76, ""},
      {[&](auto*) { return text(lumenote_convert("x", 1, "doc", "rtf", nullptr)); }, 5, ""},
      {[&](auto*) { return text(lumenote_convert("x", 1, "rtf", "text", nullptr)); }, 380, ""},
      // Nobody could close the editor.
      {[](auto* its) {
         lumenote_set(its, "pCouleurFen", "0");
         return lumenote_show(its, 1);
       },
       5, "ShowMicroEdit"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.call(control), row.number);
    EXPECT_EQ(lumenote_last_error()->number, row.number);
    EXPECT_STREQ(lumenote_last_error()->member, row.member) << &row - rows;
    EXPECT_STRNE(lumenote_last_error()->text, "");
  }
  EXPECT_EQ(Set("pTitreCadre", ""), 0);
  EXPECT_EQ(lumenote_last_error()->number, 0);
  EXPECT_STREQ(lumenote_last_error()->text, "");
}

TEST_F(InterfaceTest, AnotherThreadDoesNothingToAControl) {
  Set("pStrOrchm", "note");
  std::thread([&] {
    EXPECT_EQ(Set("pStrOrchm", "autre"), 5);
    EXPECT_EQ(lumenote_get(control, "pStrOrchm"), nullptr);
    lumenote_destroy(control);
    EXPECT_EQ(lumenote_last_error()->number, 5);
  }).join();
  EXPECT_EQ(lumenote_last_error()->number, 0);
  EXPECT_EQ(Note(), "note");
}

TEST_F(InterfaceTest, TheHandlerMayDestroyTheControlThatIsRead) {
  bool gone = false;
  lumenote_closed(
      control,
      [](LumenoteControl* closed, void* data) {
        lumenote_set(nullptr, "", "");  // a failure within is not one of the call around it
        lumenote_destroy(closed);
        *static_cast<bool*>(data) = true;
      },
      &gone);
  Set("pStrOrchm", "note");
  lumenote_show(control, 0);
  EXPECT_EQ(Note(), "note");
  EXPECT_EQ(lumenote_last_error()->number, 0);
  EXPECT_TRUE(gone);
  control = nullptr;
}

TEST_F(InterfaceTest, NotesAreConverted) {
  std::size_t length = 0;
  EXPECT_STREQ(lumenote_convert("{\\rtf1 a\\'e9}", 13, nullptr, "text", &length), "a\xE9");
  EXPECT_EQ(length, 2u);
  EXPECT_STREQ(lumenote_convert("<p>a<b>b</b>", 12, "html", "text", nullptr), "ab");
}

}  // namespace
