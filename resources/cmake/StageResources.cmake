# cmake -DKIND=DEV|VENDOR -DSOURCE=<folder or empty> -DDESTINATION=<folder> -P StageResources.cmake
#
# Replaces DESTINATION with a copy of SOURCE. A vendor set is refused when any of
# its images carries the development marker: a development bootloader or
# application written to a real machine would leave it unable to boot. So is one
# whose catalogue key is the development key, which signs development images.
file(REMOVE_RECURSE "${DESTINATION}")
if(SOURCE STREQUAL "")
    return()
endif()
if(NOT IS_DIRECTORY "${SOURCE}")
    message(FATAL_ERROR "Resource folder not found: ${SOURCE}")
endif()
if(KIND STREQUAL "VENDOR")
    file(GLOB_RECURSE images "${SOURCE}/*.bin")
    foreach(image ${images})
        file(STRINGS "${image}" marked LIMIT_COUNT 1 REGEX "TESKAL DEVELOPMENT IMAGE")
        if(marked)
            message(FATAL_ERROR "${image} is a development image; it must never be shipped")
        endif()
    endforeach()
    if(EXISTS "${SOURCE}/catalogue.pub")
        file(STRINGS "${SOURCE}/catalogue.pub" marked LIMIT_COUNT 1 REGEX "TESKAL DEVELOPMENT")
        if(marked)
            message(FATAL_ERROR
                "${SOURCE}/catalogue.pub is the development key; it must never be shipped")
        endif()
    endif()
endif()
file(COPY "${SOURCE}/" DESTINATION "${DESTINATION}")
