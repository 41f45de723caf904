#include "backends/qt/spelling/Speller.h"

#include <QPointer>
#include <utility>

#include "backends/qt/toolkit/QtText.h"
#include "base/RuntimeError.h"
#include "platform/Settings.h"

namespace lumenote {

namespace {

constexpr char16_t kApplication[] = u"Lumenote", kSection[] = u"Orthographe", kRight[] = u"1";
constexpr std::size_t kMostWords = 200'000;  // remembered; some 20 MB
constexpr int kGathering = 20;               // milliseconds

}  // namespace

Speller::Speller(Settings& settings) : settings_(settings) {
  askTimer_.setSingleShot(true);
  askTimer_.setInterval(kGathering);
  changeTimer_.setSingleShot(true);
  QObject::connect(&askTimer_, &QTimer::timeout, [this] { LookUp(); });
  worker_.moveToThread(&thread_);
}

Speller::~Speller() {
  thread_.quit();
  thread_.wait();
}

template <class Act>
void Speller::OnWorker(Act act) {
  if (!thread_.isRunning()) thread_.start(QThread::LowPriority);
  QMetaObject::invokeMethod(&worker_, [this, act = std::move(act)] {
    if (!std::exchange(searched_, true))
      if (const auto path = Dictionary::Installed())
        dictionary_ = std::make_unique<Dictionary>(*path);
    act();
  });
}

bool Speller::IsWrong(const std::u16string& word) {
  if (wrong_.size() >= kMostWords) wrong_.clear();
  const auto [known, added] = wrong_.try_emplace(word, false);
  if (!added) return known->second;
  asked_.push_back(word);
  if (!askTimer_.isActive()) askTimer_.start();
  return false;
}

void Speller::LookUp() {
  OnWorker([this, words = std::exchange(asked_, {})] { LookUpOnWorker(words); });
}

void Speller::LookUpOnWorker(const Words& words) {
  Words wrong;
  for (const std::u16string& word : words)
    if (dictionary_ && !dictionary_->Knows(ToQString(word))) wrong.push_back(word);
  if (!wrong.empty()) QMetaObject::invokeMethod(&gui_, [this, wrong] { Found(wrong); });
}

void Speller::Found(const Words& wrong) {
  const auto added = settings_.ReadEach(kApplication, kSection, wrong);
  for (std::size_t i = 0; i < wrong.size(); ++i) wrong_[wrong[i]] = added[i] != kRight;
  changeTimer_.start(0);
}

void Speller::Suggest(const std::u16string& word, QObject* context,
                      std::function<void(const QStringList&)> found) {
  OnWorker([this, word, context = QPointer(context), found = std::move(found)] {
    const QStringList all = dictionary_ ? dictionary_->Suggestions(ToQString(word)) : QStringList();
    QMetaObject::invokeMethod(&gui_, [=] {
      if (context) found(all);
    });
  });
}

void Speller::Add(const std::u16string& word) {
  settings_.Write(kApplication, kSection, word, kRight);
  wrong_[word] = false;
  changeTimer_.start(0);
}

void Speller::OnChange(QObject* context, const std::function<void()>& changed) {
  QObject::connect(&changeTimer_, &QTimer::timeout, context, changed);
}

}  // namespace lumenote
