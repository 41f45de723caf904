// The editor window: its controls, and handlers that forward to the procedures.
#pragma once
#include "editor/ContextMenu.h"
#include "editor/Dessus.h"
#include "editor/Dialogs.h"
#include "editor/MenuBar.h"
#include "editor/storage/DocumentStorage.h"
#include "editor/storage/Recovery.h"
#include "editor/storage/Secours.h"
#include "extapps/ProgramTable.h"
#include "extapps/RoundTrip.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/Timer.h"
#include "forms/controls/edits/RichTextBox.h"
#include "forms/controls/labels/Frame.h"
#include "forms/controls/labels/Label.h"
#include "forms/controls/labels/StatusBar.h"

namespace lumenote {

struct Session;

class Co_Rtf : public Form, public NoteWindow, private RoundTripClient {
 public:
  /// Works on the current `session`, and replaces it by the next editor's when it unloads. All must
  /// outlive the window.
  Co_Rtf(WindowList& windows, std::shared_ptr<Session>& session, const TempFolder& temp,
         std::vector<SentWorkFile>& outstandingWork);
  ~Co_Rtf() override;

  Frame Fr_Notes{*this, "Fr_Notes", {80, 84, 5376, 3560}};
  Label Lb_Format{Fr_Notes, "Lb_Format", {3573, 0, 1700, 195}, u"", LabelStyle::Title};
  ControlArray<Label> Lb_3Bascules{"Lb_3Bascules"};
  RichTextBox Bx_RTF{Fr_Notes, "Bx_RTF", {30, 270, 5316, 3230}};
  RichTextBox Bx_Règle{Fr_Notes, "Bx_Règle", {30, 15, 5450, 255}};
  StatusBar Bar_Etat{*this, "Bar_Etat", 2};
  Timer Timer1{*this, "Timer1"};
  Timer TimerWpd{*this, "TimerWpd"};
  Timer TimerSecours{*this, "TimerSecours"};
  ContextMenu Pop{*this};
  MenuBar Bar{*this};

  // NoteWindow
  RichTextSurface& Document() override { return Bx_RTF.Surface(); }
  Session& Values() override { return session_; }
  Platform& Services() override { return Machine(); }
  const TempFolder& Temp() override { return temp_; }
  FileState& OnDisk() override { return onDisk_; }
  void SuspendreDessus() override { dessus_.Suspendre(); }
  void RetablirDessus() override { dessus_.Retablir(); }
  MessageBox::Answer Ask(const MessageBox& box) override { return Form::Ask(box); }
  std::optional<FontChoice> ChooseFont(const FontChoice& shown, Form* dialog) override;
  Rect WindowBounds() const override { return Bounds(); }
  std::optional<Rect> SelectionBounds() override {
    return Peer() ? Peer()->SelectionIn(Bx_RTF) : std::nullopt;
  }
  float DocumentWidth() const override { return Bx_RTF.Width(); }
  void FocusDocument() override { Bx_RTF.SetFocus(); }
  void EnableSuivant(bool on) override { Bar.mnuEdtSuivantppp.Enabled(on); }
  void ShowStatus(int panel, std::u16string_view text) override { Bar_Etat.Panel(panel, text); }
  void ShowFormat(std::u16string_view text) override { Lb_Format.Caption(text); }

  /// Mode 1 shows the menu bar, 2 hides it, 3 toggles it; then the layout follows.
  void AfficheBarreMenu(int mode);

  void Describe(MemberTable& members) override;

 private:
  void Form_Load() override;
  void Form_Activate() override;
  void Form_Resize() override;
  bool Form_QueryUnload() override;
  void Form_Unload() override;
  void Form_Keep() override { recovery_.WriteNow(); }
  void Form_EnterMenuBar() override;
  void Form_LeaveMenuBar() override;
  void OpenNote();

  void WirePopup();
  void WireBar();
  void WireFormatMenu();
  void WirePrograms();
  void WireOcr();
  void WireSelectionMenu();
  void WireZones();
  void WireKeys();

  // RoundTripClient
  void Watch(bool on) override;
  bool WriteNote() override { return EcrireEtAnnoncer(*this); }
  void Reload() override { LoadFilAndIni(*this); }
  bool KeepNote() override { return GarderNote(*this, Cause::FichierModifie); }
  void GoOnUnsaved() override { ContinuerSansRecharger(*this); }
  std::optional<std::u16string> CopyFile(std::u16string_view path) override {
    return CopierFichier(Machine(), path);
  }
  void Announce(Cause cause, const std::vector<std::u16string>& copies) override {
    AnnoncerSecours(*this, cause, copies);
  }

  void ShowSaved(bool dirty);
  void Imprimer();
  void Bx_RTF_Change();
  void Bx_RTF_MouseUp(const MouseEvent& event);
  /// A click on the frame beside the labels is theirs, so that nobody has to aim.
  void Fr_Notes_MouseUp(const MouseEvent& event);
  /// A click on the ruler or on one of the labels above and below the document.
  void SwitchZone(float x, float middleWidth);
  void mnuFmtActRègle_Click();
  /// The menu commands of alignment give the keyboard back to the document.
  void Align(int alignment);
  void mnuPopSupprDoc_Click();
  void mnuPopQuitter_Click();

  std::shared_ptr<Session>& current_;
  const std::shared_ptr<Session> own_;
  std::shared_ptr<Session> next_;  // the next editor's, once this one may go
  Session& session_;
  const TempFolder& temp_;
  FileState onDisk_;
  Dessus dessus_{*this, Pop.mnuPopMettreDessus, session_};
  bool firstActivation_ = true;
  bool barShownByKey_ = false;  // and hidden again when the keyboard leaves it
  Dialogs dialogs_{*this, *this};
  ProgramTable programs_;
  RoundTrip roundTrip_;
  Recovery recovery_{*this, TimerSecours};
};

}  // namespace lumenote
