# The headers that a client may include: the entry points and what they include. Paths are relative to src/ and, once
# installed, to include/kavrix_map_resource/. Every other header is internal. A public header includes others by a path
# relative to itself ("../util/log_line.h"), so that it never finds a file of the client's own.
set(KAVRIX_PUBLIC_HEADERS
    config/bubble_layer_config_container.h
    config/bubble_layer_config_file.h
    config/bubble_style_record.h
    config/marker_bubble_config.h
    context/kavrix_context.h
    descriptors/bubble_draw_descriptor.h
    descriptors/camera_draw_descriptor.h
    descriptors/companion_bubble_draw_descriptor.h
    descriptors/descriptors.h
    descriptors/dest_name_eta_draw_descriptor.h
    descriptors/explain_bubble_draw_descriptor.h
    descriptors/hd_lane_change_bubble_draw_descriptor.h
    descriptors/hd_long_solid_bubble_draw_descriptor.h
    descriptors/indoor_entries_bubble_draw_descriptor.h
    descriptors/light_countdown_timer_draw_descriptor.h
    descriptors/light_wait_bubble_draw_descriptor.h
    descriptors/marker_draw_descriptor.h
    descriptors/marker_type.h
    descriptors/member_visitor.h
    descriptors/multi_light_countdown_timer_draw_descriptor.h
    descriptors/route_accident_bubble_draw_descriptor.h
    descriptors/safe_warning_bubble_draw_descriptor.h
    descriptors/traffic_draw_descriptor.h
    descriptors/turn_arrow_bubble_draw_descriptor.h
    descriptors/via_point_draw_descriptor.h
    descriptors/yaw_notice_bubble_draw_descriptor.h
    map_resource/encode_error.h
    map_resource/map_resource_manager.h
    map_resource/map_resource_transform.h
    map_resource/resource_catalogue.h
    map_resource/resource_name_encoder.h
    util/export.h
    util/json_util.h
    util/log_line.h
    util/string_util.h
    util/tagged_log.h
    util/tagged_log_plog.h)

# The headers of kavrix::inspect, which a static build installs beside those.
set(KAVRIX_INSPECT_HEADERS
    descriptors/flat_members.h
    inspect/explain.h
    inspect/explanation.h
    inspect/picture.h
    inspect/transform_setup.h)
