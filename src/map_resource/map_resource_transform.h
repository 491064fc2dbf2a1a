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

/// Decodes, builds and explains the resource names of map bubbles.
namespace kavrix {

/// Turns the resource name of a map bubble into everything needed to draw it. One object serves any number of
/// threads and keeps nothing between calls.
///
/// Calls also work in the constructors and destructors of static objects. Destroy the object only while no
/// call runs on it; a sink or a context that a call uses must not destroy it. After a fork() the child must
/// not call this library before exec if other threads of the parent use it: a lock that one of them held
/// stays locked in the child. After a fork() of a process with one thread, parent and child may both go on.
class KAVRIX_EXPORT MapResourceTransform {
 public:
  /// Makes a transform that takes its configuration from `context`, which must not be null. The transform
  /// shares its ownership.
  explicit MapResourceTransform(std::shared_ptr<KavrixContext> context);

  /// Sets the style record of marker bubbles, which the context does not have; until then its name is empty
  /// and its values are 0. Call it before the first decode: it takes no lock.
  void SetMarkerBubbleConfig(MarkerBubbleConfig config) { marker_bubble_config_ = std::move(config); }

  /// Recognises the kind by its marker and decodes the name into a new descriptor in `out`. A name of a known
  /// kind always gives a descriptor to draw, however broken its payload is. Only a name without a marker, and
  /// a safe-warning name whose payload is not two parts joined by `@`, leave `out` unchanged. Failures that a
  /// kind reports are log records of level kFailure; some kinds of broken payloads are reported by none.
  /// Throws std::out_of_range for a name that has a marker and is shorter than the prefix (kinds that read
  /// the whole name do not), and what the standard library throws when memory runs out.
  void GetBubbleDrawDescriptor(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out);

  /// Decodes the name of a map marker: prefix, JSON object, ".marker". `out` becomes a new
  /// MarkerDrawDescriptor, or stays unchanged when the payload is not a JSON object. Throws std::out_of_range
  /// for every name shorter than the prefix, and what the standard library throws when memory runs out.
  void GetMarkerDrawDescriptor(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out);

  /// @name Parsers
  /// GetBubbleDrawDescriptor calls the parser of the name's kind with its own arguments. Each makes a new
  /// descriptor, fills the members that its comment or the descriptor's class lists, and throws as
  /// GetBubbleDrawDescriptor does. The head of each kind's source file has the grammar of its names.
  /// @{

  /// Decodes a `.trafficBubble` name into a TrafficDrawDescriptor.
  void ParseTrafficBubbleResourceName(const std::string& resource_name,
                                      std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.nameBubble` name into a BubbleDrawDescriptor: `scene`, `content`, `bubble_kind` (0),
  /// `direction` and `mode_flag`; `style_name`, `style_word` and `style_scale` of `route_name_style` in scene
  /// 0, of `route_name_scene_style` in all others.
  void ParseRouteNameBubbleResourceName(const std::string& resource_name,
                                        std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.inDoorEntriesBubble` name into an IndoorEntriesBubbleDrawDescriptor.
  void ParseIndoorEntriesBubbleResourceName(const std::string& resource_name,
                                            std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.companionBubble` name into a CompanionBubbleDrawDescriptor.
  void ParseCompanionBubbleResourceName(const std::string& resource_name,
                                        std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.cameraBubble` name into a CameraDrawDescriptor.
  void ParseCameraBubbleResourceName(const std::string& resource_name,
                                     std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.etaBubble` name into a DestNameEtaDrawDescriptor.
  void ParseEtaBubbleResourceName(const std::string& resource_name,
                                  std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.labelBubble` name into a BubbleDrawDescriptor: `content`, `bubble_kind` (7), `direction` and
  /// `mode_flag`; of `route_label_style`, `style_name`, `style_word` (value 2 when `mode_flag` is set, else
  /// 3) and `style_scale[0]` (value 4).
  void ParseRouteLabelBubbleResourceName(const std::string& resource_name,
                                         std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.routeExplainBubble` name into an ExplainBubbleDrawDescriptor.
  void ParseRouteExplainBubbleResourceName(const std::string& resource_name,
                                           std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.markerBubble` name into a BubbleDrawDescriptor: `scene`, `content`, `bubble_kind` (0),
  /// `direction` and `mode_flag`; `style_name`, `style_word` and `style_scale` of the record of
  /// SetMarkerBubbleConfig.
  void ParseMarkerBubbleResourceName(const std::string& resource_name,
                                     std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.lightCountdownBubble` name into a LightCountdownTimerDrawDescriptor.
  void ParseLightCountdownBubbleResourceName(const std::string& resource_name,
                                             std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.multiLightCountdownBubble` name into a MultiLightCountdownTimerDrawDescriptor.
  void ParseMultiLightCountdownBubbleResourceName(const std::string& resource_name,
                                                  std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.viaCircleBubble` name into a ViaPointDrawDescriptor.
  void ParseViaCircleBubbleResourceName(const std::string& resource_name,
                                        std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.lightWaitBubble` name into a LightWaitBubbleDrawDescriptor.
  void ParseLightWaitBubbleResourceName(const std::string& resource_name,
                                        std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.turnBubble` name into a TurnArrowBubbleDrawDescriptor.
  void ParseTurnBubbleResourceName(const std::string& resource_name,
                                   std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.hdLongSolidBubble` name into an HDLongSolidBubbleDrawDescriptor.
  void ParseHdLongSolidBubbleResourceName(const std::string& resource_name,
                                          std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.UndergroundParkBubble` name into a BubbleDrawDescriptor: `content` (the key of the image:
  /// "name"), `lan`, `bubble_kind` (25), `direction` and `mode_flag`.
  void ParseUndergroundParkBubbleResourceName(const std::string& resource_name,
                                              std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.ForceDotBubble` name into a BubbleDrawDescriptor: `content` ("ForceDot", the key of the
  /// image), `bubble_kind` (27), `type`, `mode_flag` and `is_force` (true).
  void ParseForceDotBubbleResourceName(const std::string& resource_name,
                                       std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.ForcePollBubble` name into a BubbleDrawDescriptor: `content` ("ForcePoll", the key of the
  /// image), `bubble_kind` (28), `type`, `mode_flag` and `is_force` (true).
  void ParseForcePollBubbleResourceName(const std::string& resource_name,
                                        std::shared_ptr<BubbleDrawDescriptor>& out);

  /// Decodes a name of a kind whose descriptor reads the whole name itself: YawNoticeBubbleDrawDescriptor and
  /// HDLaneChangeBubbleDrawDescriptor.
  template <class Descriptor>
  void ParseResourceName(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.RouteAccidentBubble` name into a RouteAccidentBubbleDrawDescriptor.
  static void ParseRouteAccidentResourceName(const std::string& resource_name,
                                             std::shared_ptr<BubbleDrawDescriptor>& out);
  /// Decodes a `.SafeWarningBubble` name into a SafeWarningBubbleDrawDescriptor.
  void ParseSafeWarningResourceName(const std::string& resource_name,
                                    std::shared_ptr<BubbleDrawDescriptor>& out);

  /// Fills a new MarkerDrawDescriptor from a parsed JSON object, as GetMarkerDrawDescriptor does from a name.
  static void ParseMarkerResourceName(const Json::Value& value, std::shared_ptr<BubbleDrawDescriptor>& out);
  /// @}

 private:
  std::shared_ptr<KavrixContext> context_;
  MarkerBubbleConfig marker_bubble_config_;
};

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_MAP_RESOURCE_TRANSFORM_H_
