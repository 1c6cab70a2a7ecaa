#include "cli/symbol_json.h"

namespace quorn::cli {

void writeSymbolJson(JsonWriter& json, const SymbolRecord& symbol) {
  json.beginObject();
  json.key("newKeyRaw").value(symbol.newKeyRaw).key("newKey").value(symbol.newKey);
  json.key("oldKeyRaw").value(symbol.oldKeyRaw).key("oldKey").value(symbol.oldKey);
  json.key("spindleKey").value(symbol.spindleKey);
  json.key("scaleFactor").value(symbol.scaleFactor);
  json.key("mirrorType").value(symbol.mirrorType);
  json.key("flowArrow").value(symbol.flowArrow);
  json.key("dimensions").value(symbol.dimensions);
  json.key("orientation").value(symbol.orientation);
  json.key("tappingCount").value(symbol.tappingCount);
  json.key("actions").beginArray();
  for (const SymbolAction& action : symbol.actions) {
    json.beginArray().value(action.type).value(action.x).value(action.y).endArray();
  }
  json.endArray().endObject();
}

void writeSymbolText(std::ostream& out, const SymbolRecord& symbol) {
  out << "  scale factor " << symbol.scaleFactor << ", mirror type " << symbol.mirrorType
      << ", flow arrow " << symbol.flowArrow << ", dimensions " << symbol.dimensions
      << ", orientation " << symbol.orientation << ", tapping points " << symbol.tappingCount
      << '\n'
      << "  actions:";
  for (const SymbolAction& action : symbol.actions) {
    out << "  " << action.type << ' ' << action.x << ',' << action.y;
  }
  out << '\n';
}

}  // namespace quorn::cli
