// A table of texts for the toolkit's own table view, which reads and announces it as one. The rows stay with
// their owner; only those that are seen are asked for.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>

class QTableView;

namespace kv {

class frmRecordTable final : public QAbstractTableModel {
 public:
  /// What is not known is shown as "-".
  using Cell = std::function<QString(int row, int column)>;

  /// The model of `view`, which owns it; `widths` in layout pixels, the last column takes what is left.
  frmRecordTable(QTableView& view, QStringList headings, std::initializer_list<int> widths, Cell cell);

  /// The owner has other rows from now on.
  void setRows(int rows);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QStringList headings_;
  Cell cell_;
  int rows_ = 0;
};

}  // namespace kv
