#ifndef KAVRIX_MAP_RESOURCE_RESOURCE_NAME_ENCODER_H_
#define KAVRIX_MAP_RESOURCE_RESOURCE_NAME_ENCODER_H_

#include <string>

#include "../descriptors/descriptors.h"
#include "../util/export.h"
#include "encode_error.h"

// For the placing side: builds the resource name of a bubble from the descriptor that the name is to decode
// to. Members that names of the kind do not carry (styles, kind codes) are ignored.
//
// The names are canonical: equal descriptors give equal names. JSON objects have their keys in reading order,
// no blanks, and leave out what decodes to the same when left out; "mode" is always there. JSON strings write
// '@', '.' and control characters as \u escapes, which lets them hold any UTF-8.
//
// Each function decodes its name before it returns it, and throws EncodeError for what would not decode to
// the same: a separator or another kind's marker in a field of a kind without JSON, a "|" in the ETA's
// `sub_text`, bytes that are not UTF-8, a prefix that holds a marker.
namespace kavrix {

// `nav_mode` selects the style record together with the scene; the descriptor does not hold it. Modes that
// select the same record give the same name.
KAVRIX_EXPORT std::string EncodeTrafficBubbleResourceName(
    const TrafficDrawDescriptor& traffic, int nav_mode = TrafficDrawDescriptor::kDefaultNavMode);
KAVRIX_EXPORT std::string EncodeRouteNameBubbleResourceName(const BubbleDrawDescriptor& bubble);
KAVRIX_EXPORT std::string EncodeIndoorEntriesBubbleResourceName(
    const IndoorEntriesBubbleDrawDescriptor& entries);
KAVRIX_EXPORT std::string EncodeCompanionBubbleResourceName(const CompanionBubbleDrawDescriptor& companion);
KAVRIX_EXPORT std::string EncodeCameraBubbleResourceName(const CameraDrawDescriptor& camera);
KAVRIX_EXPORT std::string EncodeEtaBubbleResourceName(const DestNameEtaDrawDescriptor& eta);
KAVRIX_EXPORT std::string EncodeRouteLabelBubbleResourceName(const BubbleDrawDescriptor& label);
KAVRIX_EXPORT std::string EncodeRouteExplainBubbleResourceName(const ExplainBubbleDrawDescriptor& explain);
KAVRIX_EXPORT std::string EncodeMarkerBubbleResourceName(const BubbleDrawDescriptor& bubble);
KAVRIX_EXPORT std::string EncodeLightCountdownBubbleResourceName(
    const LightCountdownTimerDrawDescriptor& light);
KAVRIX_EXPORT std::string EncodeMultiLightCountdownBubbleResourceName(
    const MultiLightCountdownTimerDrawDescriptor& lights);
KAVRIX_EXPORT std::string EncodeViaCircleBubbleResourceName(const ViaPointDrawDescriptor& via);
KAVRIX_EXPORT std::string EncodeLightWaitBubbleResourceName(const LightWaitBubbleDrawDescriptor& bubble);
KAVRIX_EXPORT std::string EncodeTurnBubbleResourceName(const TurnArrowBubbleDrawDescriptor& turn);
KAVRIX_EXPORT std::string EncodeHdLongSolidBubbleResourceName(const HDLongSolidBubbleDrawDescriptor& bubble);
KAVRIX_EXPORT std::string EncodeUndergroundParkBubbleResourceName(const BubbleDrawDescriptor& bubble);
KAVRIX_EXPORT std::string EncodeForceDotBubbleResourceName(const BubbleDrawDescriptor& bubble);
KAVRIX_EXPORT std::string EncodeForcePollBubbleResourceName(const BubbleDrawDescriptor& bubble);
KAVRIX_EXPORT std::string EncodeYawNoticeResourceName(const YawNoticeBubbleDrawDescriptor& notice);
KAVRIX_EXPORT std::string EncodeRouteAccidentResourceName(const RouteAccidentBubbleDrawDescriptor& accident);
KAVRIX_EXPORT std::string EncodeSafeWarningResourceName(const SafeWarningBubbleDrawDescriptor& warning);
KAVRIX_EXPORT std::string EncodeLaneChangeResourceName(const HDLaneChangeBubbleDrawDescriptor& change);

// A marker name, for the second entry point. Ignores the image key, which is made of other members.
KAVRIX_EXPORT std::string EncodeMarkerResourceName(const MarkerDrawDescriptor& marker);

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_RESOURCE_NAME_ENCODER_H_
