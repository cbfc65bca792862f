# SPDX-License-Identifier: MIT
# What a desktop shows of dabpainter: where it is in menus, its icon, what it opens, what presets are.
if(UNIX AND NOT APPLE)
    set(share ${CMAKE_INSTALL_DATADIR})
    set(folder ${CMAKE_CURRENT_LIST_DIR})
    install(FILES ${folder}/org.dabcanvas.dabpainter.desktop DESTINATION ${share}/applications COMPONENT Painter)
    install(FILES ${folder}/org.dabcanvas.dabpainter.metainfo.xml DESTINATION ${share}/metainfo COMPONENT Painter)
    install(FILES ${folder}/dabcanvas.xml DESTINATION ${share}/mime/packages COMPONENT Painter)
    set(icons ${share}/icons/hicolor)
    install(FILES ${folder}/icons/dabpainter.svg DESTINATION ${icons}/scalable/apps COMPONENT Painter)
    foreach(size IN ITEMS 16 32 48 64 128 256)
        install(FILES ${folder}/icons/${size}.png RENAME dabpainter.png DESTINATION ${icons}/${size}x${size}/apps
            COMPONENT Painter)
    endforeach()
endif()
