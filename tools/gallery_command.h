#ifndef KAVRIX_TOOLS_GALLERY_COMMAND_H_
#define KAVRIX_TOOLS_GALLERY_COMMAND_H_

#include "tools/command_line.h"

namespace kavrix::tools {

// Exit status: 0 every name decoded, 1 some name failed or was left out. Throws StreamError and ConfigError.
CommandDescription GalleryCommand();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_GALLERY_COMMAND_H_
