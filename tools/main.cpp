#include <csignal>
#include <exception>
#include <iostream>

#include "tools/check_command.h"
#include "tools/command_line.h"
#include "tools/compare_command.h"
#include "tools/completion_command.h"
#include "tools/config_command.h"
#include "tools/decode_command.h"
#include "tools/draw_command.h"
#include "tools/encode_command.h"
#include "tools/error_line.h"
#include "tools/explain_command.h"
#include "tools/extract_command.h"
#include "tools/gallery_command.h"
#include "tools/icons_command.h"
#include "tools/kinds_command.h"
#include "tools/manual_command.h"
#include "tools/schema_command.h"
#include "tools/shrink_command.h"
#include "tools/streams.h"
#include "tools/survey_command.h"

namespace kavrix::tools {
namespace {

Commands AllCommands() {
  return {DecodeCommand(),
          ExplainCommand(),
          CheckCommand(),
          CompareCommand(),
          DrawCommand(),
          GalleryCommand(),
          ExtractCommand(),
          SurveyCommand(),
          ShrinkCommand(),
          EncodeCommand(),
          KindsCommand(),
          IconsCommand(),
          ConfigCommand(),
          SchemaCommand(),
          ManualCommand(AllCommands),
          CompletionCommand(AllCommands)};
}

}  // namespace
}  // namespace kavrix::tools

int main(int argc, char** argv) {
  using namespace kavrix::tools;
  std::cerr.tie(nullptr);  // else a message would flush standard output, and hide what goes wrong there
  (void)std::signal(SIGPIPE, SIG_IGN);  // a closed pipe is then an error of the write
  try {
    return RunCommandLine(AllCommands(), argc, argv);
  } catch (const ReaderGone&) {
    constexpr int kStatusOfClosedPipe = 141;  // as if the signal had ended the tool
    return kStatusOfClosedPipe;
  } catch (const ToldTrouble&) {
    return 2;
  } catch (const std::exception& error) {
    WriteErrorLine(error.what());
    return 2;
  }
}
