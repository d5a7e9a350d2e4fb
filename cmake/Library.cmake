# durvela_library(NAME SOURCES file... LINKS library...)
# A static library durvela_NAME; LINKS are its only dependencies.
function(durvela_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_library(durvela_${name} STATIC ${arg_SOURCES})
  target_include_directories(durvela_${name} PUBLIC
    ${PROJECT_SOURCE_DIR}/src ${PROJECT_BINARY_DIR}/generated)
  target_link_libraries(durvela_${name} PUBLIC durvela_options)
  foreach(link IN LISTS arg_LINKS)
    target_link_libraries(durvela_${name} PUBLIC durvela_${link})
  endforeach()
endfunction()
