#include "skey/new_symbol_dialog.h"

#include <optional>

#include "base/text.h"
#include "model/keys.h"
#include "skey/dialog_texts.h"
#include "skey/group_entries.h"
#include "skey/skey_rules.h"
#include "skey/skey_texts.h"
#include "skey/special_skeys.h"

namespace quorn {
namespace {

// A blank symbol takes a Spindle SKEY only in these groups; the range is fixed.
constexpr int kFirstSpindleGroup = 2;
constexpr int kLastSpindleGroup = 12;
// A symbol of this group keeps its Spindle SKEY as it stands while it is edited.
constexpr int kFixedSpindleGroup = 8;

ChoiceList freshList(AttributeList list, CaptionStyle style) {
  return ChoiceList{listCaptions(list, style), 0, true, true};
}

void enablePicker(PickerField& field, bool enabled) {
  field.enabled = enabled;
  field.captionEnabled = enabled;
  field.pickerEnabled = enabled;
}

}  // namespace

NewSymbolDialog::NewSymbolDialog() : state_(freshState(CaptionStyle::NewSymbol)) {}

NewSymbolDialogState NewSymbolDialog::freshState(CaptionStyle style) {
  NewSymbolDialogState state;
  state.title = std::string(kAddNewSymbolTitle);
  state.createCaption = std::string(kCreateSymbolCaption);
  state.scaleFactor.text = std::string(kDefaultScaleFactor);
  state.mirrorType = std::string(kMirrorCaptions[0]);
  state.arrow = freshList(AttributeList::FlowArrow, style);
  state.dimension = freshList(AttributeList::Dimensions, style);
  state.orientation = freshList(AttributeList::Orientation, style);
  return state;
}

ChoiceList& NewSymbolDialog::list(AttributeList which) {
  switch (which) {
    case AttributeList::FlowArrow:
      return state_.arrow;
    case AttributeList::Dimensions:
      return state_.dimension;
    case AttributeList::Orientation:
      return state_.orientation;
  }
  return state_.arrow;
}

TextField& NewSymbolDialog::field(DialogField which) {
  switch (which) {
    case DialogField::OldKey:
      return state_.oldKey;
    case DialogField::NewKey:
      return state_.newKey;
    case DialogField::SpindleKey:
      return state_.spindleKey;
    case DialogField::ScaleFactor:
      return state_.scaleFactor;
  }
  return state_.oldKey;
}

void NewSymbolDialog::setText(DialogField which, std::string text) {
  field(which).text = std::move(text);
}

bool NewSymbolDialog::choose(AttributeList which, int position) {
  ChoiceList& target = list(which);
  if (position < 0 || position >= static_cast<int>(target.items.size())) return false;
  target.position = position;
  return true;
}

void NewSymbolDialog::resetForBlankSymbol(const DialogContext& context) {
  state_ = freshState(CaptionStyle::NewSymbol);
  enableSpindleForGroup(context.currentGroup);
}

void NewSymbolDialog::resetFromGroupList(const DialogContext& context, int entry) {
  state_ = freshState(CaptionStyle::NewSymbol);
  state_.filledFromList = true;
  fillFromGroupEntry(context, entry, AttributeSource::Library);
  state_.copyTicked = true;
  state_.copyOption = CopyOption::Library;
}

void NewSymbolDialog::resetForEditing(const SymbolText& symbol, int number, int group) {
  state_ = freshState(CaptionStyle::Editing);
  state_.title = std::string(kEditSymbolTitle);
  state_.createCaption = std::string(kEditSymbolCaption);
  state_.editing = true;
  state_.editedSymbol = number;
  state_.oldKey.text = symbol.oldKey;
  state_.newKey.text = symbol.newKey;
  copyAttributesFrom(symbol);
  if (group == kFixedSpindleGroup) {
    state_.spindleKey.enabled = false;
    state_.spindleKey.captionEnabled = false;
  }
}

void NewSymbolDialog::enableSpindleForGroup(int group) {
  enablePicker(state_.spindleKey, group >= kFirstSpindleGroup && group <= kLastSpindleGroup);
}

void NewSymbolDialog::applyGroupFlags(const DialogContext& context) {
  const GroupFlags flags = groupFlags(context.config, context.currentGroup, context.currentEntry);
  if (flags.noSpindle()) state_.spindleKey.text.clear();
  enablePicker(state_.spindleKey, !flags.noSpindle());
  state_.mirrorType = std::string(kMirrorCaptions[flags.mirrored() ? 1 : 0]);
  ChoiceList& arrow = state_.arrow;
  arrow.position = flags.mayHaveFlowArrow() ? kFlowArrowOnPosition : 0;
  arrow.enabled = flags.mayHaveFlowArrow();
  arrow.captionEnabled = flags.mayHaveFlowArrow();
}

void NewSymbolDialog::setMirrorFromFlags(const DialogContext& context) {
  const GroupFlags flags = groupFlags(context.config, context.currentGroup, context.currentEntry);
  state_.mirrorType = std::string(kMirrorCaptions[flags.mirrored() ? 1 : 0]);
}

void NewSymbolDialog::fillFromGroupEntry(const DialogContext& context, int entry,
                                         AttributeSource source) {
  context.currentEntry = entry;
  applyGroupFlags(context);
  const GroupEntry* chosen = groupEntry(context.config, context.currentGroup, entry);
  if (chosen == nullptr) return;

  const EntryKeys keys = keysForEntry(chosen->skey);
  state_.oldKey.text = keys.oldKey;
  state_.newKey.text = keys.newKey;
  state_.newKey.enabled = !keys.newKeyFixed;
  state_.newKey.captionEnabled = !keys.newKeyFixed;

  const std::string_view key = typeKeyOf(trimmed(chosen->skey));
  if (const SymbolRecord* found = findAttributeSource(source, context.set, context.library, key)) {
    copyAttributesFrom(*found);
  }
  if (state_.oldKey.enabled) state_.focus = DialogField::OldKey;
}

void NewSymbolDialog::copyAttributesFrom(const SymbolText& symbol) {
  state_.spindleKey.text = std::string(trimmed(symbol.spindleKey));
  state_.scaleFactor.text = std::string(trimmed(symbol.scaleFactor));
  state_.mirrorType = std::string(mirrorCaptionForCode(symbol.mirrorType));
  state_.arrow.position = positionForCode(AttributeList::FlowArrow, symbol.flowArrow);
  state_.dimension.position = positionForCode(AttributeList::Dimensions, symbol.dimensions);
  state_.orientation.position = positionForCode(AttributeList::Orientation, symbol.orientation);
}

void NewSymbolDialog::leaveOldKey(const DialogContext& context) {
  const std::string oldKey = normalisedWord(state_.oldKey.text);
  state_.oldKey.text = oldKey;
  if (oldKey.empty()) return;
  const std::optional<int> matched = matchOldSkey(context.config, context.currentGroup, oldKey);
  if (!matched) {
    context.messages.tell(notRedefinableText(oldKey));
    return;
  }
  context.currentEntry = *matched;
  applyGroupFlags(context);
  refillFromOldKey(context, oldKey);
}

void NewSymbolDialog::refillFromOldKey(const DialogContext& context, const std::string& oldKey) {
  if (!state_.copyTicked) {
    // The flow-arrow and WWA symbols take the flags of their own entry, not of FLOW or WW.
    const std::string key = lookUpKey(oldKey, normalisedWord(state_.newKey.text));
    if (const std::optional<int> entry =
            findEntryExactly(context.config, context.currentGroup, key)) {
      context.currentEntry = *entry;
      setMirrorFromFlags(context);
    }
    return;
  }
  if (const SymbolRecord* found =
          findAttributeSource(tickedSource(), context.set, context.library, oldKey)) {
    copyAttributesFrom(*found);
  }
}

void NewSymbolDialog::leaveNewKey(const DialogContext& context) {
  const std::string newKey = normalisedWord(state_.newKey.text);
  const std::optional<std::string> key =
      specialPairLookUpKey(normalisedWord(state_.oldKey.text), newKey);
  if (key) {
    if (const std::optional<int> entry =
            findEntryExactly(context.config, context.currentGroup, *key)) {
      context.currentEntry = *entry;
    }
    if (!state_.copyTicked) {
      setMirrorFromFlags(context);
    } else if (const SymbolRecord* found =
                   findAttributeSource(tickedSource(), context.set, context.library, *key)) {
      copyAttributesFrom(*found);
    }
  }
  state_.newKey.text = newKey;
}

void NewSymbolDialog::setCopyTicked(const DialogContext& context, bool ticked) {
  state_.copyTicked = ticked;
  if (!trimmed(state_.oldKey.text).empty()) leaveOldKey(context);
}

void NewSymbolDialog::chooseCopyOption(const DialogContext& context, CopyOption option) {
  state_.copyOption = option;
  if (!trimmed(state_.oldKey.text).empty()) leaveOldKey(context);
}

AttributeSource NewSymbolDialog::tickedSource() const {
  if (!state_.copyTicked) return AttributeSource::None;
  switch (state_.copyOption) {
    case CopyOption::CurrentSet:
      return AttributeSource::CurrentSet;
    case CopyOption::Library:
      return AttributeSource::Library;
    case CopyOption::Screen:
      break;
  }
  return AttributeSource::None;
}

AttributeSource NewSymbolDialog::listChoiceSource() const {
  if (!state_.copyTicked) return AttributeSource::None;
  return state_.copyOption == CopyOption::Library ? AttributeSource::Library
                                                  : AttributeSource::CurrentSet;
}

SymbolText NewSymbolDialog::attributeTexts() const {
  SymbolText texts;
  setOldKey(texts, normalisedWord(state_.oldKey.text));
  setNewKey(texts, normalisedWord(state_.newKey.text));
  texts.spindleKey = normalisedWord(state_.spindleKey.text);
  texts.scaleFactor = std::string(trimmed(state_.scaleFactor.text));
  texts.mirrorType = std::string(mirrorCodeForCaption(state_.mirrorType));
  texts.flowArrow = std::string(codeForPosition(AttributeList::FlowArrow, state_.arrow.position));
  texts.dimensions =
      std::string(codeForPosition(AttributeList::Dimensions, state_.dimension.position));
  texts.orientation =
      std::string(codeForPosition(AttributeList::Orientation, state_.orientation.position));
  return texts;
}

}  // namespace quorn
