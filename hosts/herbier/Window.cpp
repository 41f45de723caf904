#include "Window.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

int Number(Column column) { return static_cast<int>(column); }

}  // namespace

Window::Window(Database& base, const QString& folder)
    : base_(base), notes_(base, folder, *this, [this](qint64 id) { taxa_.selectRow(RowOf(id)); }) {
  setWindowTitle("Herbier");
  resize(900, 560);
  ShowTable();

  auto* search = new QLineEdit;
  search->setPlaceholderText("Chercher dans les fiches et les remarques");
  search->setClearButtonEnabled(true);
  connect(search, &QLineEdit::textChanged, [this](const QString& words) {
    found_.Search(words);
    table_.selectRow(0);
  });
  connect(search, &QLineEdit::returnPressed, [this] { OpenCurrent(); });
  auto* find = new QAction(this);
  find->setShortcut(QKeySequence::Find);
  connect(find, &QAction::triggered, [search] {
    search->setFocus();
    search->selectAll();
  });
  addAction(find);
  auto* note = new QPushButton("&Remarques…");
  connect(note, &QPushButton::clicked, [this] { OpenCurrent(); });
  auto* add = new QPushButton("&Nouvelle fiche");
  connect(add, &QPushButton::clicked, [this, search] {
    search->clear();
    Add();
  });

  auto* bar = new QHBoxLayout;
  bar->addWidget(search);
  bar->addWidget(note);
  bar->addWidget(add);
  auto* column = new QVBoxLayout(this);
  column->addLayout(bar);
  column->addWidget(&table_);
  search->setFocus();
}

void Window::ShowTable() {
  taxa_.setTable("taxon");
  taxa_.setEditStrategy(QSqlTableModel::OnFieldChange);
  const std::pair<Column, QString> titles[] = {
      {Column::Family, "Famille"}, {Column::Genus, "Genre"}, {Column::Species, "Espèce"},
      {Column::Author, "Auteur"},  {Column::Place, "Lieu"},  {Column::Date, "Date"}};
  for (const auto& [column, title] : titles)
    taxa_.setHeaderData(Number(column), Qt::Horizontal, title);
  Load();
  found_.setSourceModel(&taxa_);
  found_.sort(Number(Column::Family));
  table_.setModel(&found_);
  for (const Column hidden : {Column::Id, Column::Note, Column::Text})
    table_.hideColumn(Number(hidden));
  table_.setSortingEnabled(true);
  table_.sortByColumn(Number(Column::Family), Qt::AscendingOrder);
  table_.setAlternatingRowColors(true);
  table_.verticalHeader()->hide();
  table_.setSelectionBehavior(QTableView::SelectRows);
  table_.setEditTriggers(QTableView::EditKeyPressed);
  table_.resizeColumnsToContents();
  table_.horizontalHeader()->setSectionResizeMode(Number(Column::Place), QHeaderView::Stretch);
  table_.selectRow(0);
  connect(&table_, &QTableView::doubleClicked, [this] { OpenCurrent(); });
  auto* open = new QAction(&table_);
  open->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
  open->setShortcutContext(Qt::WidgetShortcut);
  connect(open, &QAction::triggered, [this] { OpenCurrent(); });
  table_.addAction(open);
}

// Searches need all records.
void Window::Load() {
  taxa_.select();
  while (taxa_.canFetchMore()) taxa_.fetchMore();
}

void Window::Add() {
  try {
    const qint64 id = base_.Add();
    Load();
    const QModelIndex genus = taxa_.index(RowOf(id), Number(Column::Genus));
    table_.setCurrentIndex(found_.mapFromSource(genus));
    table_.edit(table_.currentIndex());
  } catch (const DatabaseError& error) {
    QMessageBox::critical(this, windowTitle(), error.what());
  }
}

void Window::OpenCurrent() {
  const QModelIndex cell = table_.currentIndex();
  if (!cell.isValid()) return;
  try {
    notes_.Open(cell.siblingAtColumn(Number(Column::Id)).data().toLongLong());
  } catch (const DatabaseError& error) {
    QMessageBox::critical(this, windowTitle(), error.what());
  } catch (const lumenote::RuntimeError& error) {
    QMessageBox::critical(this, windowTitle(), error.what());
  }
}

int Window::RowOf(qint64 id) const {
  int row = 0;
  while (row < taxa_.rowCount() && taxa_.index(row, Number(Column::Id)).data() != id) ++row;
  return row;
}

void Window::closeEvent(QCloseEvent* event) {
  notes_.Close();
  QWidget::closeEvent(event);
}
