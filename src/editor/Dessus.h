// Keeps the editor window above all others.
#pragma once

namespace lumenote {

class Form;
class Menu;
struct Session;

/// The session's flag, the check mark of "Maintenir Dessus" and the window's native state. Flag and
/// mark agree; around a box both say on top while the window is not.
class Dessus {
 public:
  /// All outlive this object.
  Dessus(Form& window, Menu& entry, Session& session)
      : window_(window), entry_(entry), session_(session) {}

  void Suspendre();
  /// Sets flag and mark, but the native state only if the flag was still set.
  void Retablir();
  /// What "Maintenir Dessus" does.
  void Basculer();
  /// Takes the flag from the order of the windows on the desktop.
  void Relire();

 private:
  void Marquer(bool on);

  Form& window_;
  Menu& entry_;
  Session& session_;
};

}  // namespace lumenote
