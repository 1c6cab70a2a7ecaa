#pragma once
// The Add New Symbol / Edit Symbol dialog: it shows the editor's dialog state and hands every
// change to the editor. Widgets: "newSymbolDialog" with the fields "oldKeyField",
// "newKeyField", "spindleKeyField", "scaleFactorField" (their captions: the same names ending
// in "Caption"), the picker buttons "oldKeyPicker" and "spindleKeyPicker", "mirrorType", the
// lists "arrowList", "dimensionList", "orientationList", the tick "copySymbolFrom", its options
// "copyScreen", "copyCurrentSet", "copyLibrary", and the buttons "createButton" and
// "cancelButton". Its two pickers are ExistingSymbolPickerView and SpindlePickerView.

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <array>
#include <functional>

#include "app/editor.h"
#include "ui/existing_symbol_picker_view.h"
#include "ui/spindle_picker_view.h"

namespace quorn::ui {

class NewSymbolDialogView : public QDialog {
  Q_OBJECT

 public:
  /// `changed` is called after every event, so the edit window can show what changed too.
  NewSymbolDialogView(Editor& editor, std::function<void()> changed, QWidget* parent);

  /// Mirrors the editor's dialog state; shows or hides the dialog as the state says.
  void mirror();

 protected:
  void reject() override;

 private:
  struct FieldWidgets {
    DialogField field;
    QLabel* caption;
    QLineEdit* edit;
  };

  void addField(QGridLayout* layout, int row, DialogField field, std::string_view caption,
                const char* name, QToolButton* picker = nullptr);
  QComboBox* addList(QGridLayout* layout, int row, std::string_view caption, AttributeList list,
                     const char* name, QLabel** captionLabel);
  void afterEvent();

  Editor& editor_;
  std::function<void()> changed_;
  std::vector<FieldWidgets> fields_;
  QToolButton* oldKeyPicker_;
  QToolButton* spindlePicker_;
  QLabel* mirror_;
  std::array<QComboBox*, 3> lists_{};
  std::array<QLabel*, 3> listCaptions_{};
  QCheckBox* copy_;
  std::array<QRadioButton*, 3> options_{};
  QPushButton* create_;
  ExistingSymbolPickerView* existingPickerView_;
  SpindlePickerView* spindlePickerView_;
  bool mirroring_ = false;
  /// The editor's focus field when the dialog was last mirrored.
  DialogField focusShown_ = DialogField::OldKey;
};

}  // namespace quorn::ui
