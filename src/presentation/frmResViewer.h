// The viewer of a data file for people who mod the art: its contents as a tree, any picture with what it is.
// The game never shows it. It only reads the file.
#pragma once

#include <QWidget>
#include <string>

#include "platform/Picture.h"
#include "presentation/Pictures.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace kv {

class frmResViewer : public QWidget {
 public:
  explicit frmResViewer(QWidget* parent = nullptr);

  /// Shows the file's tree with its first two types expanded; false when it cannot be opened.
  bool LoadFile(const std::string& path);

  /// Shows the resource of a node; does nothing for the root and for types. Nodes of no picture type clear
  /// the picture.
  void NodeClick(QTreeWidgetItem* node);

  [[nodiscard]] QTreeWidget* TreeView1() const { return tree_; }
  /// What the information panel says; empty while no resource is shown.
  [[nodiscard]] QString InfoText() const;

 private:
  class Panel;

  void AddNames(QTreeWidgetItem* typeNode, const TypeNode& type);
  void Expand(QTreeWidgetItem* typeNode);

  Pictures pictures_;
  ResourceTree index_;
  QTreeWidget* tree_;
  Panel* picture1_;
};

}  // namespace kv
