#ifndef KAVRIX_MAP_RESOURCE_MAP_RESOURCE_TRANSFORM_H_
#define KAVRIX_MAP_RESOURCE_MAP_RESOURCE_TRANSFORM_H_

#include <memory>
#include <string>
#include <utility>

#include "../config/marker_bubble_config.h"
#include "../context/kavrix_context.h"
#include "../descriptors/bubble_draw_descriptor.h"
#include "../util/export.h"

// JsonCpp's own header of declarations includes the streams.
namespace Json {
class Value;
}

namespace kavrix {

// Turns the resource name of a map bubble into everything needed to draw it. One object serves any number of
// threads and keeps nothing between calls.
//
// Calls also work in the constructors and destructors of static objects. Destroy the object only while no
// call runs on it; a sink or a context that a call uses must not destroy it. After a fork() the child must
// not call this library before exec if other threads of the parent use it: a lock that one of them held stays
// locked in the child. After a fork() of a process with one thread, parent and child may both go on.
class KAVRIX_EXPORT MapResourceTransform {
 public:
  // `context` must not be null. The transform shares its ownership.
  explicit MapResourceTransform(std::shared_ptr<KavrixContext> context);

  // Sets the style record of marker bubbles, which the context does not have; until then its name is empty
  // and its values are 0. Call it before the first decode: it takes no lock.
  void SetMarkerBubbleConfig(MarkerBubbleConfig config) { marker_bubble_config_ = std::move(config); }

  // Recognises the kind by its marker and decodes the name into a new descriptor in `out`. A name of a known
  // kind always gives a descriptor to draw, however broken its payload is. Only a name without a marker, and
  // a safe-warning name whose payload is not two parts joined by "@", leave `out` unchanged. Failures are log
  // records of level 1. Throws std::out_of_range for a name shorter than the prefix (kinds that read the
  // whole name do not), and what the standard library throws when memory runs out.
  void GetBubbleDrawDescriptor(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out);

  // Decodes the name of a map marker: prefix, JSON object, ".marker". `out` becomes a new
  // MarkerDrawDescriptor, or stays unchanged when the payload is not a JSON object. Throws as above.
  void GetMarkerDrawDescriptor(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out);

  // The parsers of the kinds, which GetBubbleDrawDescriptor calls with its own arguments. The head of each
  // kind's source file has the grammar of its names.
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
