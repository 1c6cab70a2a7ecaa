#include "ui/new_symbol_dialog_view.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "display/window_texts.h"
#include "skey/dialog_texts.h"
#include "ui/qt_text.h"

namespace quorn::ui {

namespace {

constexpr std::array<AttributeList, 3> kLists = {
    AttributeList::FlowArrow, AttributeList::Dimensions, AttributeList::Orientation};
constexpr std::array<const char*, 3> kListNames = {"arrowList", "dimensionList", "orientationList"};
/// The copy options' widget names, in the order of `CopyOption`.
constexpr std::array<const char*, 3> kOptionNames = {"copyScreen", "copyCurrentSet", "copyLibrary"};

}  // namespace

NewSymbolDialogView::NewSymbolDialogView(Editor& editor, std::function<void()> changed,
                                         QWidget* parent)
    : QDialog(parent),
      editor_(editor),
      changed_(std::move(changed)),
      oldKeyPicker_(new QToolButton),
      spindlePicker_(new QToolButton),
      mirror_(new QLabel),
      copy_(new QCheckBox(qtText(kCopySymbolFromCaption))),
      create_(new QPushButton),
      existingPickerView_(new ExistingSymbolPickerView(
          editor, [this] { afterEvent(); }, this)),
      spindlePickerView_(new SpindlePickerView(
          editor, [this] { afterEvent(); }, this)) {
  setModal(true);
  setObjectName(QStringLiteral("newSymbolDialog"));
  auto* layout = new QVBoxLayout(this);
  auto* grid = new QGridLayout;
  oldKeyPicker_->setText(qtText(kPickerButtonCaption));
  oldKeyPicker_->setObjectName(QStringLiteral("oldKeyPicker"));
  spindlePicker_->setText(qtText(kPickerButtonCaption));
  spindlePicker_->setObjectName(QStringLiteral("spindleKeyPicker"));
  addField(grid, 0, DialogField::OldKey, kOldKeyCaption, "oldKey", oldKeyPicker_);
  addField(grid, 1, DialogField::NewKey, kNewKeyCaption, "newKey");
  addField(grid, 2, DialogField::SpindleKey, kSpindleKeyCaption, "spindleKey", spindlePicker_);
  addField(grid, 3, DialogField::ScaleFactor, kScaleFactorCaption, "scaleFactor");
  grid->addWidget(new QLabel(qtText(kMirrorCaption)), 4, 0);
  mirror_->setObjectName(QStringLiteral("mirrorType"));
  grid->addWidget(mirror_, 4, 1, 1, 2);
  const std::array<std::string_view, 3> captions = {kArrowCaption, kDimensionCaption,
                                                    kOrientationCaption};
  for (std::size_t i = 0; i < kLists.size(); ++i) {
    lists_[i] = addList(grid, 5 + static_cast<int>(i), captions[i], kLists[i], kListNames[i],
                        &listCaptions_[i]);
  }
  layout->addLayout(grid);

  auto* copyRow = new QHBoxLayout;
  copy_->setObjectName(QStringLiteral("copySymbolFrom"));
  copyRow->addWidget(copy_);
  for (std::size_t i = 0; i < options_.size(); ++i) {
    options_[i] = new QRadioButton(qtText(kCopyOptionCaptions[i]));
    options_[i]->setObjectName(QLatin1String(kOptionNames[i]));
    copyRow->addWidget(options_[i]);
    connect(options_[i], &QRadioButton::clicked, this, [this, i] {
      if (mirroring_) return;
      editor_.chooseCopyOption(static_cast<CopyOption>(i));
      afterEvent();
    });
  }
  layout->addLayout(copyRow);
  connect(copy_, &QCheckBox::toggled, this, [this](bool ticked) {
    if (mirroring_) return;
    editor_.tickCopySymbol(ticked);
    afterEvent();
  });

  auto* buttons = new QHBoxLayout;
  auto* cancel = new QPushButton(qtText(kCancelCaption));
  cancel->setObjectName(QStringLiteral("cancelButton"));
  create_->setObjectName(QStringLiteral("createButton"));
  buttons->addStretch();
  buttons->addWidget(create_);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);
  create_->setDefault(true);
  connect(create_, &QPushButton::clicked, this, [this] {
    editor_.pressCreate();
    afterEvent();
  });
  connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
  connect(oldKeyPicker_, &QToolButton::clicked, this, [this] {
    editor_.openExistingSymbolPicker();
    afterEvent();
  });
  connect(spindlePicker_, &QToolButton::clicked, this, [this] {
    editor_.openSpindlePicker();
    afterEvent();
  });
}

void NewSymbolDialogView::addField(QGridLayout* layout, int row, DialogField field,
                                   std::string_view caption, const char* name,
                                   QToolButton* picker) {
  auto* label = new QLabel(qtText(caption));
  label->setObjectName(QLatin1String(name) + QStringLiteral("Caption"));
  auto* edit = new QLineEdit;
  edit->setObjectName(QLatin1String(name) + QStringLiteral("Field"));
  layout->addWidget(label, row, 0);
  layout->addWidget(edit, row, 1);
  if (picker) layout->addWidget(picker, row, 2);
  fields_.push_back({field, label, edit});
  connect(edit, &QLineEdit::textEdited, this, [this, field](const QString& typed) {
    editor_.typeInDialog(field, typed.toStdString());
    // Typing puts the editor's focus where the user already is: not a move to show.
    focusShown_ = editor_.symbolDialogs().dialog.state().focus;
  });
  connect(edit, &QLineEdit::editingFinished, this, [this, field] {
    if (mirroring_) return;
    editor_.leaveDialogField(field);
    afterEvent();
  });
}

QComboBox* NewSymbolDialogView::addList(QGridLayout* layout, int row, std::string_view caption,
                                        AttributeList list, const char* name,
                                        QLabel** captionLabel) {
  *captionLabel = new QLabel(qtText(caption));
  auto* box = new QComboBox;
  box->setObjectName(QLatin1String(name));
  layout->addWidget(*captionLabel, row, 0);
  layout->addWidget(box, row, 1, 1, 2);
  connect(box, &QComboBox::activated, this, [this, list](int position) {
    editor_.chooseDialogList(list, position);
    afterEvent();
  });
  return box;
}

void NewSymbolDialogView::afterEvent() {
  mirror();
  changed_();
}

void NewSymbolDialogView::reject() {
  editor_.pressCancel();
  afterEvent();
}

void NewSymbolDialogView::mirror() {
  const SymbolDialogs& dialogs = editor_.symbolDialogs();
  if (!dialogs.dialogOpen) {
    existingPickerView_->mirror();
    spindlePickerView_->mirror();
    if (isVisible()) QDialog::hide();
    return;
  }
  mirroring_ = true;
  const NewSymbolDialogState& state = dialogs.dialog.state();
  setWindowTitle(QString::fromStdString(state.title));
  create_->setText(QString::fromStdString(state.createCaption));
  for (const FieldWidgets& widgets : fields_) {
    const TextField& field = widgets.field == DialogField::OldKey       ? state.oldKey
                             : widgets.field == DialogField::NewKey     ? state.newKey
                             : widgets.field == DialogField::SpindleKey ? state.spindleKey
                                                                        : state.scaleFactor;
    const QSignalBlocker blocker(widgets.edit);
    if (widgets.edit->text().toStdString() != field.text) {
      widgets.edit->setText(QString::fromStdString(field.text));
    }
    widgets.edit->setEnabled(field.enabled);
    widgets.caption->setEnabled(field.captionEnabled);
  }
  oldKeyPicker_->setEnabled(state.oldKey.pickerEnabled);
  spindlePicker_->setEnabled(state.spindleKey.pickerEnabled);
  mirror_->setText(QString::fromStdString(state.mirrorType));
  const std::array<const ChoiceList*, 3> lists = {&state.arrow, &state.dimension,
                                                  &state.orientation};
  for (std::size_t i = 0; i < lists.size(); ++i) {
    const QSignalBlocker blocker(lists_[i]);
    lists_[i]->clear();
    for (const std::string& item : lists[i]->items)
      lists_[i]->addItem(QString::fromStdString(item));
    lists_[i]->setCurrentIndex(lists[i]->position);
    lists_[i]->setEnabled(lists[i]->enabled);
    listCaptions_[i]->setEnabled(lists[i]->captionEnabled);
  }
  {
    const QSignalBlocker blocker(copy_);
    copy_->setChecked(state.copyTicked);
  }
  for (std::size_t i = 0; i < options_.size(); ++i) {
    const QSignalBlocker blocker(options_[i]);
    options_[i]->setChecked(static_cast<std::size_t>(state.copyOption) == i);
  }
  mirroring_ = false;
  const bool opening = !isVisible();
  if (opening) open();
  // The editor moves the focus when the dialog opens and when a field must be typed again;
  // otherwise the user's Tab and clicks decide where it is.
  if (opening || state.focus != focusShown_) {
    for (const FieldWidgets& widgets : fields_) {
      if (widgets.field == state.focus) widgets.edit->setFocus();
    }
  }
  focusShown_ = state.focus;
  // The pickers stand over the dialog.
  existingPickerView_->mirror();
  spindlePickerView_->mirror();
}

}  // namespace quorn::ui
