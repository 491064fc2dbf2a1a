#ifndef KAVRIX_DESCRIPTORS_DESCRIPTORS_H_
#define KAVRIX_DESCRIPTORS_DESCRIPTORS_H_

/// @file
/// Includes every descriptor type.
#include "bubble_draw_descriptor.h"
#include "camera_draw_descriptor.h"
#include "companion_bubble_draw_descriptor.h"
#include "dest_name_eta_draw_descriptor.h"
#include "explain_bubble_draw_descriptor.h"
#include "hd_lane_change_bubble_draw_descriptor.h"
#include "hd_long_solid_bubble_draw_descriptor.h"
#include "indoor_entries_bubble_draw_descriptor.h"
#include "light_countdown_timer_draw_descriptor.h"
#include "light_wait_bubble_draw_descriptor.h"
#include "marker_draw_descriptor.h"
#include "multi_light_countdown_timer_draw_descriptor.h"
#include "route_accident_bubble_draw_descriptor.h"
#include "safe_warning_bubble_draw_descriptor.h"
#include "traffic_draw_descriptor.h"
#include "turn_arrow_bubble_draw_descriptor.h"
#include "via_point_draw_descriptor.h"
#include "yaw_notice_bubble_draw_descriptor.h"

#endif  // KAVRIX_DESCRIPTORS_DESCRIPTORS_H_
