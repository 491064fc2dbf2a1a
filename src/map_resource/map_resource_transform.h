#ifndef KAVRIX_MAP_RESOURCE_MAP_RESOURCE_TRANSFORM_H_
#define KAVRIX_MAP_RESOURCE_MAP_RESOURCE_TRANSFORM_H_

#include <json/forwards.h>

#include <memory>
#include <string>
#include <utility>

#include "config/marker_bubble_config.h"
#include "context/kavrix_context.h"
#include "descriptors/descriptors.h"

namespace kavrix {

// Turns the resource name of a map bubble into everything needed to draw it. One object serves any number of
// threads; nothing is kept between calls.
//
// Calls work before main and after it, in the constructors and destructors of static objects. The object is
// destroyed when no call of it runs, so not by a sink or a context that the call itself uses. The child of a
// fork() calls nothing of this library before exec if the parent had other threads that use it: a lock that
// one of them held is held for ever there. A parent of one thread and its child may both go on.
class MapResourceTransform {
 public:
  // `context` must not be null. The transform shares it, so the client may let go of it at any time.
  explicit MapResourceTransform(std::shared_ptr<KavrixContext> context);

  // Sets the style of marker bubbles, which is not the context's; without it they have an empty name and
  // zeros. To be called before the first decode: it does not wait for other threads.
  void SetMarkerBubbleConfig(MarkerBubbleConfig config) { marker_bubble_config_ = std::move(config); }

  // Recognises the kind by its marker and decodes the name into a new descriptor in `out`. A name of a known
  // kind always leaves a descriptor to draw, however broken its payload is (a safe-warning name whose payload
  // is not two pieces joined by "@" alone leaves `out` alone); a name without a marker leaves `out`
  // untouched. Failures are log records of level 1. Throws std::out_of_range for a name shorter than the
  // prefix, and what the standard library throws when memory runs out.
  void GetBubbleDrawDescriptor(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out);

  // Decodes the name of a map marker: prefix, JSON object, ".marker". `out` is a new MarkerDrawDescriptor, or
  // untouched when the payload is not a JSON object. Throws as above.
  void GetMarkerDrawDescriptor(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out);

  // The parser of each kind, called by GetBubbleDrawDescriptor with its own arguments. The grammar of the
  // payload stands at the head of the kind's source file.
  void ParseTrafficBubbleResourceName(const std::string& resource_name,
                                      std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseRouteNameBubbleResourceName(const std::string& resource_name,
                                        std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseIndoorEntriesBubbleResourceName(const std::string& resource_name,
                                            std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseCompanionBubbleResourceName(const std::string& resource_name,
                                        std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseCameraBubbleResourceName(const std::string& resource_name,
                                     std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseEtaBubbleResourceName(const std::string& resource_name,
                                  std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseRouteLabelBubbleResourceName(const std::string& resource_name,
                                         std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseRouteExplainBubbleResourceName(const std::string& resource_name,
                                           std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseMarkerBubbleResourceName(const std::string& resource_name,
                                     std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseLightCountdownBubbleResourceName(const std::string& resource_name,
                                             std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseMultiLightCountdownBubbleResourceName(const std::string& resource_name,
                                                  std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseViaCircleBubbleResourceName(const std::string& resource_name,
                                        std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseLightWaitBubbleResourceName(const std::string& resource_name,
                                        std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseTurnBubbleResourceName(const std::string& resource_name,
                                   std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseHdLongSolidBubbleResourceName(const std::string& resource_name,
                                          std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseUndergroundParkBubbleResourceName(const std::string& resource_name,
                                              std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseForceDotBubbleResourceName(const std::string& resource_name,
                                       std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseForcePollBubbleResourceName(const std::string& resource_name,
                                        std::shared_ptr<BubbleDrawDescriptor>& out);

  // For the kinds whose descriptor decodes the whole name itself: YawNoticeBubbleDrawDescriptor and
  // HDLaneChangeBubbleDrawDescriptor.
  template <class Descriptor>
  void ParseResourceName(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out);
  static void ParseRouteAccidentResourceName(const std::string& resource_name,
                                             std::shared_ptr<BubbleDrawDescriptor>& out);
  void ParseSafeWarningResourceName(const std::string& resource_name,
                                    std::shared_ptr<BubbleDrawDescriptor>& out);

  // Fills a new MarkerDrawDescriptor from a parsed JSON object.
  static void ParseMarkerResourceName(const Json::Value& value, std::shared_ptr<BubbleDrawDescriptor>& out);

 private:
  std::shared_ptr<KavrixContext> context_;
  MarkerBubbleConfig marker_bubble_config_;
};

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_MAP_RESOURCE_TRANSFORM_H_
