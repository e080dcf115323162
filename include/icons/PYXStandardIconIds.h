// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QObject>

namespace PYXRuntime {

/**
 * The ids of the icons that all applications share; PYXStandardIcons gives the icons, and inherits the ids.
 *
 * The bits above the lower 12 name a group; a block within a group begins after a multiple of 256. Ids that
 * are released keep their value. An application takes its own ids from FirstFreeId on.
 */
class PYXRUNTIME_EXPORT PYXStandardIconIds
{
    Q_GADGET
public:
    static constexpr uint FirstFreeId = 0x1000000;

    enum eStandardIcon : uint {
        ekIcon_NullIcon = 0, ///< an empty icon
        ekIcon_IconInvisibleIcon = 1,
        ekIcon_IconNotFoundIcon = 2,
        ekIcon_IconNotRegisteredIcon = 3,

        // General
        ekIcon_About = 17,
        ekIcon_Exit,
        ekIcon_FlipLayout,
        ekIcon_FloppyDisk,
        ekIcon_Help,
        ekIcon_Info,
        ekIcon_DisplayOpenSourceAcknowledgment,
        ekIcon_OpenCurrentLog,
        ekIcon_OpenLogsFolder,
        ekIcon_OpenReportsFolder,
        ekIcon_OpenResultsFolder,
        ekIcon_Screenshot,
        ekIcon_Settings,
        ekIcon_Options,
        ekIcon_View_Options,
        ekIcon_View_Large_Icons,
        ekIcon_View_Small_Icons,
        ekIcon_View_Reset,
        ekIcon_ClearVisualisation,
        ekIcon_New,
        ekIcon_Open,
        ekIcon_Close,
        ekIcon_Close_All,
        ekIcon_Save,
        ekIcon_Save_All,
        ekIcon_SaveAs,
        ekIcon_Document,
        ekIcon_Add,
        ekIcon_AddFrom,
        ekIcon_Remove,
        ekIcon_Delete,
        ekIcon_Rename,
        ekIcon_Automatic_Rename,
        ekIcon_Edit,
        ekIcon_Arrow_Down,
        ekIcon_Arrow_Left,
        ekIcon_Arrow_Right,
        ekIcon_Arrow_Up,
        ekIcon_Undo,
        ekIcon_Redo,
        ekIcon_Browse,
        ekIcon_Browse_For_Folder,
        ekIcon_Find_Application,
        ekIcon_Explore,
        ekIcon_Download,
        ekIcon_Upload,
        ekIcon_Refresh,
        ekIcon_Update,
        ekIcon_Reset,
        ekIcon_RevertChanges,
        ekIcon_Export_From,
        ekIcon_Export_To,
        ekIcon_Import_From,
        ekIcon_Import_To,
        ekIcon_Clone,
        ekIcon_Convert,
        ekIcon_Clipboard_Copy,
        ekIcon_Clipboard_Cut,
        ekIcon_Clipboard_Paste,
        ekIcon_Use,
        ekIcon_Use_Up,
        ekIcon_Promote,
        ekIcon_Promote_Down,
        ekIcon_Color_Select,
        ekIcon_Font_Select,
        ekIcon_Tree_Expand_All,
        ekIcon_Tree_Collapse_All,
        ekIcon_Auto_Adjust_Columns,
        ekIcon_Configure_Visible_Columns,
        ekIcon_Reset_Column_Order,
        ekIcon_Save_Column_Order,
        ekIcon_Delete_Saved_Column_Order,
        ekIcon_Generate_Report,
        ekIcon_Link,
        ekIcon_Link_Broken,
        ekIcon_HelpAndManuals,
        ekIcon_HelpDocument,

        // Buttons
        ekIcon_Button_OK = 0x1001,
        ekIcon_Button_Cancel,
        ekIcon_Button_Help,

        // Miscellaneous
        ekIcon_Application_Icon = 0x2001,
        ekIcon_Misc_KuT_Logo,
        ekIcon_Attention,
        ekIcon_ConnectionBroken,
        ekIcon_UnderConstruction,
        ekIcon_GenericTool,
        ekIcon_Status_Not_OK,
        ekIcon_Status_OK,
        ekIcon_Status_NeedsAttention,
        ekIcon_Status_Unknown,
        ekIcon_Network_Computer,
        ekIcon_Network_Database,
        ekIcon_Network_Folder,
        ekIcon_Report,
        ekIcon_Directions,
        ekIcon_Sum,

        // LEDs
        ekIcon_LED_Round_Blue = 0x3001,
        ekIcon_LED_Round_Cyan,
        ekIcon_LED_Round_Green,
        ekIcon_LED_Round_Magenta,
        ekIcon_LED_Round_Orange,
        ekIcon_LED_Round_Red,
        ekIcon_LED_Round_Violet,
        ekIcon_LED_Round_Yellow,

        // Bullets
        ekIcon_Bullet_Black = 0x3101,

        // Docks and widgets
        ekIcon_ShowHideAllDocks = 0x4001,
        ekIcon_Widget_LogMessages,

        // Player
        ekIcon_Player_AddBookmark = 0x5001,
        ekIcon_Player_LoopingMode,
        ekIcon_Player_Pause,
        ekIcon_Player_Recording,
        ekIcon_Player_Speed_Decrease,
        ekIcon_Player_Speed_Default,
        ekIcon_Player_Speed_Fastest,
        ekIcon_Player_Speed_Increase,
        ekIcon_Player_Start,
        ekIcon_Player_StartStop_Combined,
        ekIcon_Player_Stop,
        ekIcon_Player_StopAllRecordings,
        ekIcon_Player_Sound,
        ekIcon_Player_Sound_No_Traffic,
        ekIcon_Player_Sound_Traffic,
        ekIcon_Player_Sound_Not_Available,
        ekIcon_Player_Sound_Not_Available_Traffic,
        ekIcon_Player_Sound_Not_Available_No_Traffic,
        ekIcon_Player_Sound_Volume_Decrease,
        ekIcon_Player_Sound_Volume_Increase,
        ekIcon_Player_Sound_Volume_Mute,
        ekIcon_Player_Document,
        ekIcon_Player_Document_Part,

        // Browser
        ekIcon_Browser_Home = 0x5101,
        ekIcon_Browser_Home_New,

        // Input sources
        ekIcon_InputSource_Tuner = 0x6001,
        ekIcon_InputSource_Tuner_Snapshot,
        ekIcon_InputSource_Soundcard,

        // Demodulators and decoders
        ekIcon_DemDec_UniversalDemodulator = 0x7001,

        // Pins
        ekIcon_Pin_Unpinned_Blue = 0x8001,
        ekIcon_Pin_Pinned_Blue,
        ekIcon_Pin_OnOff_Blue,

        // Storage
        ekIcon_Storage_Local = 0x9001,
        ekIcon_Storage_Local_Connected,
        ekIcon_Storage_Network,
        ekIcon_Storage_None,
        ekIcon_Storage_Select,

        // Images
        ekIcon_Image_Zoom_In = 0xA001,
        ekIcon_Image_Zoom_Out,
        ekIcon_Image_Zoom_Reset,
        ekIcon_Image_Zoom_Auto,
        ekIcon_Image_Zoom_Auto_Y,
        ekIcon_Image_Zoom_Tool,
        ekIcon_Image_Zoom_Link,
        ekIcon_Image_Size_Fit_Height,
        ekIcon_Image_Size_Fit_Width,
        ekIcon_Image_Size_Fit_View,
        ekIcon_Image_Size_Fit_Keep_Aspect,
        ekIcon_Image_Size_Fit_Keep_Aspect_Expanding,
        ekIcon_Album,
        ekIcon_Image,
        ekIcon_Image_Delete,
        ekIcon_Image_Error,
        ekIcon_Image_Export,
        ekIcon_Image_Save,
        ekIcon_Image_Print,

        // Displays
        ekIcon_Display_Apply_Smoothing = 0xB001,
        ekIcon_Display_Auto_XScale,
        ekIcon_Display_Auto_YScale,
        ekIcon_Display_Auto_YScale_Colors,
        ekIcon_Display_Show_Absolute_Frequency,
        ekIcon_Display_Show_Absolute_Time,
        ekIcon_Display_Show_Grid,
        ekIcon_Display_Show_LineSpectrum,
        ekIcon_Display_Tool_Bandwidth_Level,
        ekIcon_Display_Tool_Level,
        ekIcon_Display_Tool_Multi_Measurement,
        ekIcon_Display_No_Tool,

        // Overlays
        ekIcon_Overlay_Eye = 0xF00001,
        ekIcon_Overlay_Eye_No,
        ekIcon_Overlay_Eye_Interleaved, ///< made of the two before it
        ekIcon_Overlay_Saved,

        // Overlays that keep their size
        ekIcon_Overlay_Non_Scaled_Recording = 0xF01001
    };
    Q_ENUM(eStandardIcon)
};

} // namespace PYXRuntime
