# pd_fmt: {fmt} as a static library of ours, built for the ABI at hand.
find_path(FMT_INCLUDE_DIR fmt/format-inl.h REQUIRED)
add_library(pd_fmt STATIC EXCLUDE_FROM_ALL ${CMAKE_CURRENT_LIST_DIR}/fmt.cpp)
target_include_directories(pd_fmt SYSTEM PUBLIC ${FMT_INCLUDE_DIR})
