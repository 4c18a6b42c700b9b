#include "history/frmRecordTable.h"

#include <QHeaderView>
#include <QTableView>
#include <utility>

namespace kv {
namespace {

constexpr int kRowHeight = 20;  // layout pixels

}  // namespace

frmRecordTable::frmRecordTable(QTableView& view, QStringList headings, std::initializer_list<int> widths,
                               Cell cell)
    : QAbstractTableModel(&view), headings_(std::move(headings)), cell_(std::move(cell)) {
  view.setModel(this);
  view.setSelectionBehavior(QAbstractItemView::SelectRows);
  view.setSelectionMode(QAbstractItemView::SingleSelection);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view.setTabKeyNavigation(false);  // Tab leads on, the arrow keys from row to row
  view.setShowGrid(false);
  view.setWordWrap(false);
  view.setCornerButtonEnabled(false);
  view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view.verticalHeader()->hide();
  view.verticalHeader()->setDefaultSectionSize(kRowHeight);
  view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view.horizontalHeader()->setFont(view.font());
  view.horizontalHeader()->setHighlightSections(false);
  view.horizontalHeader()->setSectionsClickable(false);
  view.horizontalHeader()->setStretchLastSection(true);
  view.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  int column = 0;
  for (const int width : widths) view.setColumnWidth(column++, width);
}

void frmRecordTable::setRows(int rows) {
  beginResetModel();
  rows_ = rows;
  endResetModel();
}

int frmRecordTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int frmRecordTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant frmRecordTable::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole && role != Qt::ToolTipRole) return {};
  const QString text = cell_(index.row(), index.column());
  return text.isEmpty() ? QStringLiteral("-") : text;
}

QVariant frmRecordTable::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return headings_.at(section);
}

}  // namespace kv
