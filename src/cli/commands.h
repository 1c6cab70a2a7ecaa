#pragma once
// The commands of the `symbols` tool. Each takes the words after its name and returns the
// process's exit status: 0 done, 1 a check failed, 2 refused (bad input or a fatal fault).

#include <iosfwd>
#include <string>
#include <vector>

namespace quorn::cli {

using Words = std::vector<std::string>;

int runConfig(const Words& words, std::ostream& out, std::ostream& err);
int runLibrary(const Words& words, std::ostream& out, std::ostream& err);
#ifdef QUORN_WITH_RENDER
int runRender(const Words& words, std::ostream& out, std::ostream& err);
#endif
int runReplay(const Words& words, std::ostream& out, std::ostream& err);
int runSpindles(const Words& words, std::ostream& out, std::ostream& err);
int runConvert(const Words& words, std::ostream& out, std::ostream& err);
int runList(const Words& words, std::ostream& out, std::ostream& err);
int runCheckKeys(const Words& words, std::ostream& out, std::ostream& err);
int runCheck(const Words& words, std::ostream& out, std::ostream& err);

}  // namespace quorn::cli
