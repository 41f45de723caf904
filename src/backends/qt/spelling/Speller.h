// Which words are spelt wrong, looked up by a thread of its own.
#pragma once
#include <QObject>
#include <QStringList>
#include <QThread>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "backends/qt/spelling/Dictionary.h"

namespace lumenote {

class Settings;

/// Lives on the windows' thread and never waits: a word counts as right until its turn has come on
/// the dictionary's own thread. Without a dictionary every word is right.
class Speller {
 public:
  /// Words that the user adds are kept in `settings`, which must outlive the speller.
  explicit Speller(Settings& settings);
  ~Speller();
  Speller(const Speller&) = delete;
  Speller& operator=(const Speller&) = delete;

  /// Asks for the word, if it is not known yet.
  bool IsWrong(const std::u16string& word);
  /// Calls `found`, soon, unless `context` is gone.
  void Suggest(const std::u16string& word, QObject* context,
               std::function<void(const QStringList&)> found);
  /// From now on, and in every program of the user's, this word is right.
  void Add(const std::u16string& word);
  /// Calls `changed` when a word has turned out to be wrong, or right after all, as long as
  /// `context` lives.
  void OnChange(QObject* context, const std::function<void()>& changed);

 private:
  using Words = std::vector<std::u16string>;

  /// Runs an act on the dictionary's thread.
  template <class Act>
  void OnWorker(Act act);
  void LookUp();
  void LookUpOnWorker(const Words& words);
  void Found(const Words& wrong);

  Settings& settings_;
  std::unordered_map<std::u16string, bool> wrong_;  // by the words asked for so far
  Words asked_;                                     // but not looked up yet
  QTimer askTimer_;
  QTimer changeTimer_;
  QObject gui_;  // on the windows' thread
  QThread thread_;
  QObject worker_;                          // on the dictionary's
  std::unique_ptr<Dictionary> dictionary_;  // only used there
  bool searched_ = false;                   // likewise: for an installed one
};

}  // namespace lumenote
