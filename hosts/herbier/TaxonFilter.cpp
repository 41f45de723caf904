#include "TaxonFilter.h"

#include <algorithm>

#include "Database.h"

namespace {

QString WithoutAccents(const QString& text) {
  QString plain = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
  plain.removeIf([](QChar c) { return c.isMark(); });
  return plain.replace("œ", "oe");
}

}  // namespace

void TaxonFilter::Search(const QString& words) {
  words_ = WithoutAccents(words).split(' ', Qt::SkipEmptyParts);
  invalidateRowsFilter();
}

bool TaxonFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
  QStringList fields;
  for (int column = 0; column < sourceModel()->columnCount(parent); ++column)
    if (column != static_cast<int>(Column::Note))
      fields << sourceModel()->index(row, column, parent).data().toString();
  const QString record = WithoutAccents(fields.join(' '));
  return std::ranges::all_of(words_, [&](const QString& word) { return record.contains(word); });
}
