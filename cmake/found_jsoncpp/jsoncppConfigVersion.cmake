include(${kavrix_jsoncpp_dir}/jsoncppConfigVersion.cmake OPTIONAL)
