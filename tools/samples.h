#ifndef KAVRIX_TOOLS_SAMPLES_H_
#define KAVRIX_TOOLS_SAMPLES_H_

// The files of samples/ as they were when the tool was built.
namespace kavrix::tools {

extern const char kDefaultConfig[];
extern const char kSampleNames[];        // bubble names, one a line
extern const char kSampleMarkerNames[];  // marker names, one a line

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_SAMPLES_H_
