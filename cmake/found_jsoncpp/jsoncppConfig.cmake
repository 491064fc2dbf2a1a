# Stands in for JsonCpp's package once FindKavrixJsonCpp.cmake has read it. That of 1.9.5 defines JsonCpp::JsonCpp without a
# look whether it is there, so a client's own find_package(jsoncpp) must not read it again.
