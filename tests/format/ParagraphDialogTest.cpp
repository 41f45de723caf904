// The paragraph dialog: whatever an act changes in its controls, in the note or in the style.
#include <algorithm>
#include <map>

#include "base/Strings.h"
#include "base/Value.h"
#include "format/StyleStore.h"
#include "hosts/Host.h"
#include "pilot/context/Objects.h"
#include "platform/Settings.h"

namespace lumenote {
namespace {

class ParagraphDialogTest : public HostTest {
 protected:
  ParagraphDialogTest() {
    CurrentStyle = {};
    StyleRightMargin = 0;
    control->pNomAppli(u"Flore");
    Open(
        u"{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Times;}}\\f0\\fs24\\li165\\sb30 un\\par"
        u"\\li300\\ri45\\qr\\f1\\fs30 deux}");
    Settings& settings = platform.UserSettings();
    settings.Write(u"Flore", kStandardSection, u"SpaceAfter", u"60");
    settings.Write(u"Flore", u"Standard", u"SpaceAfter", u"75");
    settings.Write(u"Flore", u"Para 2", u"SpaceAfter", u"90");
    Editor().Bar.mnuFmtParagraph.UserClick();
    dialog = dynamic_cast<Co_Paragraph*>(control->Parts().windows.Active());
    Changes();
  }

  /// What has changed since the last call, by name.
  std::string Changes() {
    std::map<std::string, std::string> state = State();
    std::string changes;
    for (const auto& [name, value] : state)
      if (state_[name] != value) changes += (changes.empty() ? "" : " ") + name + "=" + value;
    state_ = std::move(state);
    return changes;
  }

  Co_Paragraph* dialog;

 private:
  std::map<std::string, std::string> State() {
    std::map<std::string, std::string> state;
    for (Element* element : dialog->Elements())
      Read(*element, element->Name() + ".", {"Text", "Value"}, state);
    Read(Editor().Bx_RTF, "",
         {"SelStart", "SelLength", "SelFontName", "SelFontSize", "SelBold", "SelIndent",
          "SelHangingIndent", "SelRightIndent", "SelAlignment", "RightMargin", "LineSpacing",
          "SpaceBefore", "SpaceAfter"},
         state);
    for (const char* name :
         {"Alignment", "HangingIndent", "SpaceAfter", "SpaceBefore", "LeftFront", "RightIndent",
          "LeftIndent", "LineSpacing", "StyleRightMargin", "FontName", "FontSize"})
      state["style." + std::string(name)] = Quoted(ReadStyle(name));
    return state;
  }
  static std::string Quoted(const Value& value) {
    std::string text = WriteJson(value);
    std::ranges::replace(text, '"', '\'');
    return text;
  }
  static void Read(Element& element, const std::string& prefix,
                   std::initializer_list<const char*> members,
                   std::map<std::string, std::string>& state) {
    MemberTable table;
    element.Describe(table);
    for (const char* name : members)
      if (const Member* member = table.Find(name)) state[prefix + name] = Quoted(member->get(-1));
  }

  std::map<std::string, std::string> state_;
};

TEST_F(ParagraphDialogTest, EachActChangesWhatBelongsToIt) {
  const struct {
    std::function<void()> act;
    const char* changes;
  } rows[] = {
      {[&] { dialog->UD_LeftIndent.UserSpin(true); },
       "Bx_IndentGauche.Text='5,29' SelIndent=300 style.LeftFront=300 style.LeftIndent=300"},
      {[&] { dialog->UD_LeftIndent.UserSpin(false); },
       "Bx_IndentGauche.Text='2,64' SelIndent=150 style.LeftFront=150 style.LeftIndent=150"},
      {[&] { dialog->UD_RightIndent.UserSpin(false); },
       "Bx_IndentDroite.Text='2,64' SelRightIndent=150 style.RightIndent=150"},
      {[&] { dialog->UD_HangingIndent.UserSpin(true); },
       "Bx_HangingIndent.Text='2,64' SelHangingIndent=150 style.HangingIndent=150 "
       "style.LeftFront=300"},
      {[&] { dialog->UD_SpaceBefore.UserSpin(true); },
       "Bx_AvantPara.Text='0,79' SpaceBefore=45 style.SpaceBefore=45"},
      {[&] { dialog->UD_SpaceAfter.UserSpin(true); },
       "Bx_AprèsPara.Text='0,26' SpaceAfter=15 style.SpaceAfter=15"},
      {[&] { dialog->UD_RightMargin.UserSpin(true); },
       "Bx_RightMargin.Text='2' RightMargin=150 style.StyleRightMargin=150"},
      {[&] { dialog->Lb_AutoMargin.UserClick(); }, "Bx_RightMargin.Text='0' RightMargin=0"},
      {[&] { dialog->UD_LineSpacing.UserSpin(true); },
       "Bx_LineSpacing.Text='1,05' LineSpacing=21 UD_LineSpacing.Value=21 opnInter(0).Value=false "
       "style.LineSpacing=21"},
      {[&] { dialog->opnInter(3).UserClick(); },
       "Bx_LineSpacing.Text='2,00' LineSpacing=40 opnInter(3).Value=true style.LineSpacing=40"},
      {[&] { dialog->opnInter(0).UserClick(); },
       "Bx_LineSpacing.Text='1,00' LineSpacing=20 opnInter(0).Value=true opnInter(3).Value=false "
       "style.LineSpacing=20"},
      {[&] { dialog->opnAlign(2).UserClick(); },
       "SelAlignment=1 opnAlign(0).Value=false opnAlign(2).Value=true style.Alignment=1"},
      {[&] { dialog->opnAlign(1).UserClick(); },
       "SelAlignment=2 opnAlign(1).Value=true opnAlign(2).Value=false style.Alignment=2"},
      {[&] { dialog->opnAlign(0).UserClick(); },
       "SelAlignment=0 opnAlign(0).Value=true opnAlign(1).Value=false style.Alignment=0"},
      {[&] {
         Editor().Document().SelStart(4), Editor().Document().RightMargin(300),
             dialog->Bt_Rafraichir.UserClick();
       },
       "Bx_AprèsPara.Text='0' Bx_AvantPara.Text='0,52' Bx_FontName.Text='Times' "
       "Bx_FontSize.Text='15' Bx_HangingIndent.Text='0' Bx_IndentDroite.Text='0,79' "
       "Bx_IndentGauche.Text='5,29' Bx_LineSpacing.Text='1' Bx_RightMargin.Text='5' "
       "RightMargin=300 SelAlignment=1 SelFontName='Times' SelFontSize=15 SelHangingIndent=0 "
       "SelIndent=300 SelLength=4 SelRightIndent=45 SelStart=4 SpaceAfter=0 SpaceBefore=30 "
       "UD_LineSpacing.Value=20 opnAlign(0).Value=false opnAlign(2).Value=true style.Alignment=1 "
       "style.FontName='Times' style.FontSize='15' style.HangingIndent=0 style.LeftIndent=300 "
       "style.RightIndent=45 "
       "style.SpaceAfter=0 style.SpaceBefore=30 style.StyleRightMargin=300"},
      {[&] { dialog->CboSaveStyleReg.UserPick(2); }, "CboSaveStyleReg.Text='Para 2'"},
      {[&] { dialog->cboSetStyleReg.UserPick(0); },
       "Bx_AprèsPara.Text='1,05' Bx_FontName.Text='MS Sans Serif' Bx_FontSize.Text='11' "
       "Bx_HangingIndent.Text='-2,39' Bx_IndentDroite.Text='0' Bx_IndentGauche.Text='2,91' "
       "Bx_RightMargin.Text='0' RightMargin=0 SelAlignment=0 SelFontName='MS Sans Serif' "
       "SelFontSize=11 SelHangingIndent=-135 SelIndent=165 SelRightIndent=0 SpaceAfter=60 "
       "opnAlign(0).Value=true opnAlign(2).Value=false style.Alignment=0 "
       "style.FontName='MS Sans Serif' style.FontSize='11' style.HangingIndent=-135 "
       "style.LeftFront=30 style.LeftIndent=165 style.RightIndent=0 "
       "style.SpaceAfter=60 style.StyleRightMargin=0"},
      {[&] { dialog->cboSetStyleReg.UserPick(2); },
       "Bx_AprèsPara.Text='1,58' SpaceAfter=90 cboSetStyleReg.Text='Para 2' style.SpaceAfter=90"},
  };
  for (const auto& row : rows) {
    row.act();
    EXPECT_EQ(Changes(), row.changes) << &row - rows;
  }
}

TEST_F(ParagraphDialogTest, StylesOfAHostThatIsAPathAreReadUnderItsProgramsName) {
  const std::pair<std::u16string_view, std::u16string_view> cases[] = {
      {u"Rosa 2.0", u"Rosa 2.0"},
      {u"C:\\Hotes\\Rosa.exe", u"Rosa"},
      {u"C:\\", u""},
      {u"C:", u"C:"},
      {u"::\\", u""}};
  for (const auto& [application, name] : cases) {
    StyleRecord style;
    platform.UserSettings().Write(name, u"s", u"SpaceAfter", u"7");
    LoadStyle(platform.UserSettings(), application, u"s", style);
    EXPECT_EQ(style.SpaceAfter, 7) << ToUtf8(application);
    platform.UserSettings().Write(name, u"s", u"SpaceAfter", u"8");
  }
}

}  // namespace
}  // namespace lumenote
