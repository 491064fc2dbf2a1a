#ifndef KAVRIX_DESCRIPTORS_DESCRIPTORS_H_
#define KAVRIX_DESCRIPTORS_DESCRIPTORS_H_

// Includes every descriptor type.
#include "descriptors/bubble_draw_descriptor.h"
#include "descriptors/camera_draw_descriptor.h"
#include "descriptors/companion_bubble_draw_descriptor.h"
#include "descriptors/dest_name_eta_draw_descriptor.h"
#include "descriptors/explain_bubble_draw_descriptor.h"
#include "descriptors/hd_lane_change_bubble_draw_descriptor.h"
#include "descriptors/hd_long_solid_bubble_draw_descriptor.h"
#include "descriptors/indoor_entries_bubble_draw_descriptor.h"
#include "descriptors/light_countdown_timer_draw_descriptor.h"
#include "descriptors/light_wait_bubble_draw_descriptor.h"
#include "descriptors/marker_draw_descriptor.h"
#include "descriptors/multi_light_countdown_timer_draw_descriptor.h"
#include "descriptors/route_accident_bubble_draw_descriptor.h"
#include "descriptors/safe_warning_bubble_draw_descriptor.h"
#include "descriptors/traffic_draw_descriptor.h"
#include "descriptors/turn_arrow_bubble_draw_descriptor.h"
#include "descriptors/via_point_draw_descriptor.h"
#include "descriptors/yaw_notice_bubble_draw_descriptor.h"

#endif  // KAVRIX_DESCRIPTORS_DESCRIPTORS_H_
