#ifndef KAVRIX_INSPECT_SHORTEST_REAL_H_
#define KAVRIX_INSPECT_SHORTEST_REAL_H_

#include <string>

namespace kavrix::inspect {

// The text that std::to_chars gives a finite float: the shortest that reads back to it. For standard
// libraries that have to_chars for integers only, under every locale.
std::string ShortestText(float value);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_SHORTEST_REAL_H_
