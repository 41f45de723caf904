// The records that a search shows.
#pragma once
#include <QSortFilterProxyModel>
#include <QStringList>

/// Shows the records that have all the words somewhere in their fields or note, whatever their
/// capitals and accents: "chene" finds "Chênes".
class TaxonFilter : public QSortFilterProxyModel {
 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  void Search(const QString& words);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  QStringList words_;
};
