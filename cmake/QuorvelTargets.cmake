# How the targets of this project are made.

# Warnings are errors everywhere, in product, tools and tests alike.
add_library(quorvel_warnings INTERFACE)
target_compile_features(quorvel_warnings INTERFACE cxx_std_20)
target_compile_options(
  quorvel_warnings
  INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
            # GCC 12 reports overlaps inside std::string's own operator+ that cannot happen (its bug 105651).
            $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

# quorvel_layer(NAME SOURCES file... [LINKS target...])
#
# A folder is a layer and a target. Its headers are reached as "NAME/Header.h", through a link that stands alone in a
# folder of its own: a target that does not link the layer cannot include from it.
function(quorvel_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  set(root ${PROJECT_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${name} COPY_ON_ERROR SYMBOLIC)
  add_library(quorvel_${name} STATIC ${arg_SOURCES})
  target_include_directories(quorvel_${name} PUBLIC ${root})
  target_link_libraries(quorvel_${name} PUBLIC quorvel_warnings ${arg_LINKS})
  set_property(GLOBAL APPEND PROPERTY QUORVEL_LAYERS ${name})
endfunction()
