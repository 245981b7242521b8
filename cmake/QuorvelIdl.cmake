# quorvel_idl(TARGET NAME.idl): the header NAME.h and the type library NAME.tlb of an interface description.
#
# What links the target finds NAME.h, and a resource file of its sources finds NAME.tlb.
function(quorvel_idl target description)
  find_program(QUORVEL_WIDL widl REQUIRED)
  # The system's own type library is the same for both widths; the package has it in the folder of one.
  find_path(QUORVEL_TYPE_LIBRARIES stdole2.tlb REQUIRED NO_CMAKE_FIND_ROOT_PATH
            PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/wine/x86_64-windows)
  get_filename_component(name ${description} NAME_WE)
  set(bits -m64)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(bits -m32)
  endif()
  set(idl ${CMAKE_CURRENT_SOURCE_DIR}/${description})
  set(out ${CMAKE_CURRENT_BINARY_DIR}/${target})
  file(MAKE_DIRECTORY ${out})
  foreach(made h t)
    set(file ${out}/${name}.h)
    if(made STREQUAL "t")
      set(file ${out}/${name}.tlb)
    endif()
    add_custom_command(
      OUTPUT ${file}
      COMMAND ${CMAKE_COMMAND} -DWIDL=${QUORVEL_WIDL} -DLIBRARIES=${QUORVEL_TYPE_LIBRARIES} -DIDL=${idl} -DOUTPUT=${file} -DKIND=-${made} -DBITS=${bits} -P
              ${PROJECT_SOURCE_DIR}/cmake/CompileIdl.cmake
      DEPENDS ${idl} ${PROJECT_SOURCE_DIR}/cmake/CompileIdl.cmake
      VERBATIM)
    list(APPEND files ${file})
  endforeach()
  add_custom_target(${target}_files DEPENDS ${files})
  add_library(${target} INTERFACE)
  add_dependencies(${target} ${target}_files)
  # What the compiler writes is not held to this project's warnings.
  target_include_directories(${target} SYSTEM INTERFACE ${out})
endfunction()
