#include "display/symbol_sheet.h"

#include <cmath>
#include <filesystem>
#include <span>

#include "display/sheet_texts.h"
#include "model/limits.h"
#include "model/symbol_record.h"
#include "skey/attribute_codes.h"
#include "skey/dialog_texts.h"

namespace quorn {

namespace {

std::string orNone(const std::string& value) {
  return value.empty() ? std::string(kSheetNoValue) : value;
}

std::string listCaption(AttributeList list, const std::string& code) {
  const std::span<const AttributeChoice> choices = attributeChoices(list);
  return std::string(choices[static_cast<std::size_t>(positionForCode(list, code))].caption);
}

// Tenths of a millimetre as millimetres, with no more decimals than the value needs.
std::string millimetres(double tenths) {
  const long long hundredths = std::llround(tenths * 10);
  const long long magnitude = std::llabs(hundredths);
  std::string text = (hundredths < 0 ? "-" : "") + std::to_string(magnitude / 100);
  const long long fraction = magnitude % 100;
  if (fraction != 0) {
    text += '.' + std::string(1, static_cast<char>('0' + fraction / 10));
    if (fraction % 10 != 0) text += static_cast<char>('0' + fraction % 10);
  }
  return text + std::string(kSheetMillimetres);
}

std::string fileNameOnly(const std::string& fileName) {
  if (fileName.empty()) return {};
  // Names the user typed on another system may use backslashes.
  const std::size_t cut = fileName.find_last_of("/\\");
  return cut == std::string::npos ? fileName : fileName.substr(cut + 1);
}

}  // namespace

std::string sheetDocumentName(const SymbolText& symbol) {
  if (!symbol.newKey.empty()) return symbol.newKey;
  if (!symbol.oldKey.empty()) return symbol.oldKey;
  return std::string(kSheetDocumentName);
}

std::string sheetFileName(const SymbolText& symbol) {
  std::string name = sheetDocumentName(symbol);
  for (char& c : name) {
    const bool plain = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
                       c == '-' || c == '_';
    if (!plain) c = '_';
  }
  return name + ".pdf";
}

SymbolSheet symbolSheet(const SymbolText& symbol, const std::string& fileName,
                        const Configuration& config) {
  SymbolSheet sheet;
  sheet.heading = std::string(kSheetHeading);
  if (const std::string name = sheetDocumentName(symbol); name != kSheetDocumentName)
    sheet.heading += " " + name;
  if (const std::string file = fileNameOnly(fileName); !file.empty())
    sheet.fileLine = std::string(kSheetFileCaption) + file;
  sheet.gridLine = std::string(kSheetGridCaption) + millimetres(config.pitch) + ", " +
                   std::string(kSheetScaleCaption) + millimetres(config.hsize);

  sheet.keysHeading = std::string(kSheetKeysHeading);
  sheet.keys = {
      {std::string(kOldKeyCaption), orNone(symbol.oldKey)},
      {std::string(kNewKeyCaption), orNone(symbol.newKey)},
      {std::string(kSpindleKeyCaption), orNone(symbol.spindleKey)},
      {std::string(kScaleFactorCaption), symbol.scaleFactor.empty()
                                             ? std::string(kSheetNoValue)
                                             : symbol.scaleFactor + std::string(kSheetPercent)},
  };
  sheet.attributesHeading = std::string(kSheetAttributesHeading);
  sheet.attributes = {
      {std::string(kMirrorCaption), std::string(mirrorCaptionForCode(symbol.mirrorType))},
      {std::string(kArrowCaption), listCaption(AttributeList::FlowArrow, symbol.flowArrow)},
      {std::string(kDimensionCaption), listCaption(AttributeList::Dimensions, symbol.dimensions)},
      {std::string(kOrientationCaption),
       listCaption(AttributeList::Orientation, symbol.orientation)},
  };
  sheet.legendHeading = std::string(kSheetLegendHeading);
  for (const LegendItem item :
       {LegendItem::StartPoint, LegendItem::EndPoint, LegendItem::SpindlePoint,
        LegendItem::TappingPoint, LegendItem::Insulation, LegendItem::Tracing}) {
    sheet.legend.push_back({item, std::string(kLegendLabels[static_cast<std::size_t>(item)])});
  }
  return sheet;
}

LegendSample legendSample(LegendItem item, int width) {
  LegendSample sample;
  WorkingSymbol& symbol = sample.symbol;
  const std::int32_t half = width / 2;
  // Markers sit on the centre; lines run from the start slot's point across the width.
  auto segment = [&](std::int16_t code) {
    symbol.slots[1] = {kMove, -half, 0, false};
    symbol.slots[2] = {code, half, 0, false};
    symbol.actionCount = 2;
    sample.slot = 2;
  };
  switch (item) {
    case LegendItem::StartPoint:
      symbol.slots[1] = {kMove, 0, 0, false};
      symbol.actionCount = 1;
      sample.slot = 1;
      break;
    case LegendItem::EndPoint:
      symbol.slots[kEndSlot] = {kWorkingEndPoint, 0, 0, false};
      sample.slot = kEndSlot;
      break;
    case LegendItem::SpindlePoint:
      symbol.slots[kSpindleSlot] = {kSpindlePoint, 0, 0, false};
      sample.slot = kSpindleSlot;
      break;
    case LegendItem::TappingPoint:
      symbol.slots[1] = {kMove, 0, 0, false};
      symbol.slots[2] = {kTappingPoint, 0, 0, false};
      symbol.actionCount = 2;
      symbol.tappingCount = 1;
      sample.slot = 2;
      break;
    case LegendItem::Insulation:
      segment(kInsulation);
      break;
    case LegendItem::Tracing:
      segment(kTracing);
      break;
  }
  return sample;
}

}  // namespace quorn
