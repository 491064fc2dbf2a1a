#ifndef KAVRIX_MAP_RESOURCE_RESOURCE_NAME_ENCODER_H_
#define KAVRIX_MAP_RESOURCE_RESOURCE_NAME_ENCODER_H_

#include <string>

#include "../descriptors/descriptors.h"
#include "../util/export.h"
#include "encode_error.h"

/// @file
/// For the placing side: builds the resource name of a bubble from the descriptor that the name is to decode
/// to. Members that names of the kind do not carry (styles, kind codes) are ignored.
///
/// The names are canonical: equal descriptors give equal names. JSON objects have their keys in reading
/// order, no blanks, and leave out what decodes to the same when left out; "mode" is always there. In JSON
/// strings, `@`, `.` and control characters are `\u` escapes, which lets them hold any UTF-8.
///
/// Each function decodes its name before it returns it, and throws EncodeError for what would not decode to
/// the same: a separator or another kind's marker in a field of a kind without JSON, a `|` in the ETA's
/// `sub_text`, bytes that are not UTF-8, a prefix that holds a marker.
namespace kavrix {

/// Builds the name of a `.trafficBubble`. `nav_mode` selects the style record together with the scene; the
/// descriptor does not hold it. Modes that select the same record give the same name.
KAVRIX_EXPORT std::string EncodeTrafficBubbleResourceName(
    const TrafficDrawDescriptor& traffic, int nav_mode = TrafficDrawDescriptor::kDefaultNavMode);
/// Builds the name of a `.nameBubble`, which carries `content`, `mode_flag`, `scene` and `direction`.
KAVRIX_EXPORT std::string EncodeRouteNameBubbleResourceName(const BubbleDrawDescriptor& bubble);
/// Builds the name of a `.inDoorEntriesBubble`.
KAVRIX_EXPORT std::string EncodeIndoorEntriesBubbleResourceName(
    const IndoorEntriesBubbleDrawDescriptor& entries);
/// Builds the name of a `.companionBubble`.
KAVRIX_EXPORT std::string EncodeCompanionBubbleResourceName(const CompanionBubbleDrawDescriptor& companion);
/// Builds the name of a `.cameraBubble`.
KAVRIX_EXPORT std::string EncodeCameraBubbleResourceName(const CameraDrawDescriptor& camera);
/// Builds the name of a `.etaBubble`.
KAVRIX_EXPORT std::string EncodeEtaBubbleResourceName(const DestNameEtaDrawDescriptor& eta);
/// Builds the name of a `.labelBubble`, which carries `content`, `mode_flag` and `direction`.
KAVRIX_EXPORT std::string EncodeRouteLabelBubbleResourceName(const BubbleDrawDescriptor& label);
/// Builds the name of a `.routeExplainBubble`.
KAVRIX_EXPORT std::string EncodeRouteExplainBubbleResourceName(const ExplainBubbleDrawDescriptor& explain);
/// Builds the name of a `.markerBubble`, which carries `scene`, `mode_flag`, `direction` and `content`.
KAVRIX_EXPORT std::string EncodeMarkerBubbleResourceName(const BubbleDrawDescriptor& bubble);
/// Builds the name of a `.lightCountdownBubble`.
KAVRIX_EXPORT std::string EncodeLightCountdownBubbleResourceName(
    const LightCountdownTimerDrawDescriptor& light);
/// Builds the name of a `.multiLightCountdownBubble`.
KAVRIX_EXPORT std::string EncodeMultiLightCountdownBubbleResourceName(
    const MultiLightCountdownTimerDrawDescriptor& lights);
/// Builds the name of a `.viaCircleBubble`.
KAVRIX_EXPORT std::string EncodeViaCircleBubbleResourceName(const ViaPointDrawDescriptor& via);
/// Builds the name of a `.lightWaitBubble`.
KAVRIX_EXPORT std::string EncodeLightWaitBubbleResourceName(const LightWaitBubbleDrawDescriptor& bubble);
/// Builds the name of a `.turnBubble`.
KAVRIX_EXPORT std::string EncodeTurnBubbleResourceName(const TurnArrowBubbleDrawDescriptor& turn);
/// Builds the name of a `.hdLongSolidBubble`.
KAVRIX_EXPORT std::string EncodeHdLongSolidBubbleResourceName(const HDLongSolidBubbleDrawDescriptor& bubble);
/// Builds the name of a `.UndergroundParkBubble`, which carries `lan`, `mode_flag`, `direction` and
/// `content`.
KAVRIX_EXPORT std::string EncodeUndergroundParkBubbleResourceName(const BubbleDrawDescriptor& bubble);
/// Builds the name of a `.ForceDotBubble`, which carries `mode_flag` and `type`.
KAVRIX_EXPORT std::string EncodeForceDotBubbleResourceName(const BubbleDrawDescriptor& bubble);
/// Builds the name of a `.ForcePollBubble`, which carries `mode_flag` and `type`.
KAVRIX_EXPORT std::string EncodeForcePollBubbleResourceName(const BubbleDrawDescriptor& bubble);
/// Builds the name of a `.YawNoticeBubble`.
KAVRIX_EXPORT std::string EncodeYawNoticeResourceName(const YawNoticeBubbleDrawDescriptor& notice);
/// Builds the name of a `.RouteAccidentBubble`.
KAVRIX_EXPORT std::string EncodeRouteAccidentResourceName(const RouteAccidentBubbleDrawDescriptor& accident);
/// Builds the name of a `.SafeWarningBubble`.
KAVRIX_EXPORT std::string EncodeSafeWarningResourceName(const SafeWarningBubbleDrawDescriptor& warning);
/// Builds the name of a `.LaneChangeBubble`.
KAVRIX_EXPORT std::string EncodeLaneChangeResourceName(const HDLaneChangeBubbleDrawDescriptor& change);

/// Builds a marker name, for MapResourceTransform::GetMarkerDrawDescriptor. Ignores the image key, which is
/// made of other members.
KAVRIX_EXPORT std::string EncodeMarkerResourceName(const MarkerDrawDescriptor& marker);

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_RESOURCE_NAME_ENCODER_H_
