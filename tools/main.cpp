#include <csignal>
#include <exception>

#include "tools/command_line.h"
#include "tools/decode_command.h"
#include "tools/encode_command.h"
#include "tools/error_line.h"
#include "tools/icons_command.h"
#include "tools/kinds_command.h"

int main(int argc, char** argv) {
  using namespace kavrix::tools;
  (void)std::signal(SIGPIPE, SIG_IGN);  // a closed pipe is then an error of the write
  try {
    return RunCommandLine({DecodeCommand(), EncodeCommand(), KindsCommand(), IconsCommand()}, argc, argv);
  } catch (const std::exception& error) {
    WriteErrorLine(error.what());
    return 2;
  }
}
