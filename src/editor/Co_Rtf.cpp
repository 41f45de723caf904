// The life of the editor window.
#include "editor/Co_Rtf.h"

#include "editor/EditCommands.h"
#include "editor/Layout.h"
#include "editor/storage/SessionLife.h"
#include "editor/storage/StoredGeometry.h"
#include "format/Ruler.h"
#include "forms/Backend.h"
#include "lumenote/Platform.h"
#include "session/Session.h"

namespace lumenote {

Co_Rtf::Co_Rtf(WindowList& windows, std::shared_ptr<Session>& session, const TempFolder& temp,
               std::vector<SentWorkFile>& outstandingWork)
    : Form(windows, "Co_Rtf", {5000, 3250, 5650, 4350}, u"MicroEditeur"),
      current_(session),
      own_(session),
      session_(*own_),
      temp_(temp),
      roundTrip_(*this, *this, programs_, Machine().Programs(), outstandingWork) {
  Lb_3Bascules.Add(Fr_Notes, Rect{57, 195, 5262, 75}, u"", LabelStyle::Strip);
  Lb_3Bascules.Add(Fr_Notes, Rect{57, 3510, 5262, 50}, u"", LabelStyle::Strip);
  for (int index = 0; index < Lb_3Bascules.Count(); ++index)
    Lb_3Bascules(index).SpokenName(u"Menus, Règle, Paragraphe");
  Bx_Règle.Locked(true);
  Bx_Règle.SpokenName(u"Règle");
  Bx_RTF.Change = [this] { Bx_RTF_Change(); };
  Bx_RTF.MouseUp = [this](const MouseEvent& event) { Bx_RTF_MouseUp(event); };
  Bx_Règle.Surface().TextRTF(RulerRtf());
  WirePopup();
  WireBar();
  WireFormatMenu();
  WirePrograms();
  WireOcr();
  WireSelectionMenu();
  WireZones();
  WireKeys();
  DisableEntriesWithoutCommand(*this);
  session_.dirty.Assigned = [this](bool dirty) {
    ShowSaved(dirty);
    dirty ? recovery_.Edited() : recovery_.Drop();
  };
}

Co_Rtf::~Co_Rtf() { session_.dirty.Assigned = nullptr; }

// --- life

void Co_Rtf::Form_Load() {
  CommencerSession(session_);
  Document().TextMode(kTextModeRichMultilevel);
  Timer1.Interval(10);
  Timer1.Enabled(true);
  AfficheBarreMenu(2);
  Bx_Règle.Visible(false);
  Pop.mnuPopSupprDoc.Visible(session_.fileMode);
  RetablirDessus();
}

void Co_Rtf::Form_Activate() {
  if (!firstActivation_) return;
  firstActivation_ = false;
  try {
    OpenNote();
  } catch (...) {
    if (!session_.loaded) Unload();  // nobody would save what is typed into it
    throw;
  }
}

void Co_Rtf::OpenNote() {
  RetablirGeometrie(*this, Machine().UserSettings(), session_.settingsKey);
  Pop.mnuPopEnregistrer.Visible(session_.fileMode);
  IgnoringErrors([this] { programs_ = ChercherApplis(Machine(), CheminTemp(temp_)); });
  session_.loaded = OuvrirDocument(*this);
  session_.changes = 0;
  RetrouverNotes(*this);
  if (session_.closed) return;
  if (!session_.loaded) {
    Unload();
    return;
  }
  Bx_RTF.SetFocus();
  roundTrip_.RescueLateResults();
}

void Co_Rtf::Form_Resize() {
  Disposer({Fr_Notes, Bx_RTF, Bx_Règle, Lb_Format, {&Lb_3Bascules(0), &Lb_3Bascules(1)}}, Width(),
           Height(), session_.menuBarShown);
}

// The next editor's session is created here, where a failed allocation keeps the window open.
bool Co_Rtf::Form_QueryUnload() {
  if (!FermerNote(*this)) return false;
  next_ = std::make_shared<Session>(session_);
  CloreSession(*next_);
  return true;
}

void Co_Rtf::Form_Unload() {
  session_.closed = true;
  current_ = std::move(next_);
  Timer1.Enabled(false);
  TimerWpd.Enabled(false);
  recovery_.Drop();
  dialogs_.UnloadAll();
  roundTrip_.Leave();
}

// --- what others need of the window

void Co_Rtf::Watch(bool on) {
  TimerWpd.Interval(RoundTrip::kInterval);
  TimerWpd.Enabled(on);
}

void Co_Rtf::ShowSaved(bool dirty) {
  if (dirty)
    Bar_Etat.Sign(StatusSign::Modified, u"Modifié");
  else
    Bar_Etat.Sign(StatusSign::Saved, u"Enregistré");
}

void Co_Rtf::Describe(MemberTable& members) {
  Form::Describe(members);
  members.Add("TypeEditeur", [this] { return Value(int{roundTrip_.TypeEditeur()}); });
  members.Add("EtatWpd", [this] { return Value(int{roundTrip_.EtatWpd()}); });
  members.Add("FichierTravail", [this] { return Value(roundTrip_.FichierTravail()); });
  members.Add("DateTravail", [this] { return Value(roundTrip_.DateTravail()); });
}

void Co_Rtf::Imprimer() {
  Document().CompleteComposition();
  const std::u16string title = Fr_Notes.Caption().empty() ? Caption() : Fr_Notes.Caption();
  SuspendreDessus();
  Machine().Windows().Print(Bx_RTF, title, *this);
  RetablirDessus();
}

std::optional<FontChoice> Co_Rtf::ChooseFont(const FontChoice& shown, Form* dialog) {
  SuspendreDessus();
  auto chosen = Machine().Windows().ChooseFont(shown, dialog ? dialog : this);
  RetablirDessus();
  return chosen;
}

}  // namespace lumenote
