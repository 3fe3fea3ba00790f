# Sources of one room compiled as one unit, so that headers are read and templates instantiated once
# a room. Names that are local to a file must be unique in such a room. Off for development (preset
# dev), where one file changes at a time.
option(PD_UNITY "Compile the sources of a room together" ON)

# pd_unity(<target> <room>...)
function(pd_unity target)
  if(NOT PD_UNITY)
    return()
  endif()
  get_target_property(sources ${target} SOURCES)
  foreach(source ${sources})
    cmake_path(GET source PARENT_PATH room)
    cmake_path(GET room FILENAME room)
    if(room IN_LIST ARGN)
      set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${room})
    endif()
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()
