#ifndef KAVRIX_TESTS_SUPPORT_READ_PICTURE_H_
#define KAVRIX_TESTS_SUPPORT_READ_PICTURE_H_

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "descriptors/bubble_draw_descriptor.h"

namespace kavrix::test {

// The size that no picture reaches.
constexpr std::size_t kLargestPicture = 32768;

// Decodes without a configuration and without log records.
std::shared_ptr<BubbleDrawDescriptor> DecodeToDraw(const std::string& name, bool is_marker);

// What stands in a picture, where a person can see it.
std::vector<std::string> VisibleTexts(const std::string& picture);

// The text of each member as the picture has it.
std::map<std::string, std::string> MemberTexts(const std::string& picture);

// What a reader must find in a picture or page for a text.
std::string WithReplacements(std::string_view text);

// A member's text is shown as a whole or, where it has no room, as much of it as has.
void ExpectShown(const std::string& path, const std::string& shown, const std::string& text,
                 const std::string& where);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_READ_PICTURE_H_
