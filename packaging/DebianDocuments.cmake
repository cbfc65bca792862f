# SPDX-License-Identifier: MIT
# What Debian wants of every package and nobody else installs: its copyright and changes, in a folder of its own name.
# CPack runs it when the components' files are together.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(version ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
function(compress file)
    execute_process(COMMAND gzip -9n ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(folder ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    file(MAKE_DIRECTORY ${folder})
    configure_file(${CPACK_DABCANVAS_SOURCES}/LICENSE ${folder}/copyright COPYONLY)
    configure_file(${CPACK_DABCANVAS_SOURCES}/CHANGELOG.md ${folder}/changelog COPYONLY)
    file(WRITE ${folder}/changelog.Debian "dabcanvas (${version}) unstable; urgency=medium

  * Version ${CPACK_PACKAGE_VERSION}, whose changes are in changelog.gz.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
    compress(${folder}/changelog)
    compress(${folder}/changelog.Debian)
endforeach()
