// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "StandardIconTable.h"

#include "PYXStandardIconIds.h"

#include <iterator>

#define PYX_ICON(name, path)                                                                                 \
    {                                                                                                        \
        PYXStandardIconIds::ekIcon_##name, "ekIcon_" #name, path                                             \
    }
#define PYX_ICON_WITHOUT_FILE(name)                                                                          \
    {                                                                                                        \
        PYXStandardIconIds::ekIcon_##name, "ekIcon_" #name, nullptr                                          \
    }

namespace PYXRuntime {
namespace {

constexpr struStandardIcon Table[] = {
    PYX_ICON_WITHOUT_FILE(NullIcon),
    PYX_ICON_WITHOUT_FILE(IconInvisibleIcon),
    PYX_ICON_WITHOUT_FILE(IconNotFoundIcon),
    PYX_ICON_WITHOUT_FILE(IconNotRegisteredIcon),
    // General
    PYX_ICON(About, "about"),
    PYX_ICON(Exit, "exit"),
    PYX_ICON(FlipLayout, "flipLayout"),
    PYX_ICON(FloppyDisk, "floppy_disk"),
    PYX_ICON(Help, "help"),
    PYX_ICON(Info, "info"),
    PYX_ICON(DisplayOpenSourceAcknowledgment, "display_openSourceAcknowledgment"),
    PYX_ICON(OpenCurrentLog, "open_current_log"),
    PYX_ICON(OpenLogsFolder, "open_logs_folder"),
    PYX_ICON(OpenReportsFolder, "open_reports_folder"),
    PYX_ICON(OpenResultsFolder, "open_results_folder"),
    PYX_ICON(Screenshot, "screenshot"),
    PYX_ICON(Settings, "settings"),
    PYX_ICON(Options, "options"),
    PYX_ICON(View_Options, "view_options"),
    PYX_ICON(View_Large_Icons, "view_large_icons"),
    PYX_ICON(View_Small_Icons, "view_small_icons"),
    PYX_ICON(View_Reset, "view_reset"),
    PYX_ICON(ClearVisualisation, "clearVisualisation"),
    PYX_ICON(New, "new"),
    PYX_ICON(Open, "open"),
    PYX_ICON(Close, "close"),
    PYX_ICON(Close_All, "close_all"),
    PYX_ICON(Save, "save"),
    PYX_ICON(Save_All, "save_all"),
    PYX_ICON(SaveAs, "saveAs"),
    PYX_ICON(Document, "document"),
    PYX_ICON(Add, "add"),
    PYX_ICON(AddFrom, "addFrom"),
    PYX_ICON(Remove, "remove"),
    PYX_ICON(Delete, "delete"),
    PYX_ICON(Rename, "rename"),
    PYX_ICON(Automatic_Rename, "rename_auto"),
    PYX_ICON(Edit, "edit"),
    PYX_ICON(Arrow_Down, "arrow_down"),
    PYX_ICON(Arrow_Left, "arrow_left"),
    PYX_ICON(Arrow_Right, "arrow_right"),
    PYX_ICON(Arrow_Up, "arrow_up"),
    PYX_ICON(Undo, "undo"),
    PYX_ICON(Redo, "redo"),
    PYX_ICON(Browse, "browse"),
    PYX_ICON(Browse_For_Folder, "browse_for_folder"),
    PYX_ICON(Find_Application, "find_application"),
    PYX_ICON(Explore, "explore"),
    PYX_ICON(Download, "download"),
    PYX_ICON(Upload, "upload"),
    PYX_ICON(Refresh, "refresh"),
    PYX_ICON(Update, "update"),
    PYX_ICON(Reset, "reset"),
    PYX_ICON(RevertChanges, "revertChanges"),
    PYX_ICON(Export_From, "export_from"),
    PYX_ICON(Export_To, "export_to"),
    PYX_ICON(Import_From, "import_from"),
    PYX_ICON(Import_To, "import_to"),
    PYX_ICON(Clone, "clone"),
    PYX_ICON(Convert, "convert"),
    PYX_ICON(Clipboard_Copy, "clipboard_copy"),
    PYX_ICON(Clipboard_Cut, "clipboard_cut"),
    PYX_ICON(Clipboard_Paste, "clipboard_paste"),
    PYX_ICON(Use, "use"),
    PYX_ICON(Use_Up, "use_up"),
    PYX_ICON(Promote, "promote"),
    PYX_ICON(Promote_Down, "promote_down"),
    PYX_ICON(Color_Select, "color_select"),
    PYX_ICON(Font_Select, "font_select"),
    PYX_ICON(Tree_Expand_All, "tree_expand_all"),
    PYX_ICON(Tree_Collapse_All, "tree_collapse_all"),
    PYX_ICON(Auto_Adjust_Columns, "auto_adjust_columns"),
    PYX_ICON(Configure_Visible_Columns, "configure_visible_columns"),
    PYX_ICON(Reset_Column_Order, "reset_column_order"),
    PYX_ICON(Save_Column_Order, "save_column_order"),
    PYX_ICON(Delete_Saved_Column_Order, "delete_saved_column_order"),
    PYX_ICON(Generate_Report, "generate_report"),
    PYX_ICON(Link, "link"),
    PYX_ICON(Link_Broken, "link_broken"),
    PYX_ICON(HelpAndManuals, "help_and_manuals"),
    PYX_ICON(HelpDocument, "help_document"),
    // Buttons
    PYX_ICON(Button_OK, "button_ok"),
    PYX_ICON(Button_Cancel, "button_cancel"),
    PYX_ICON(Button_Help, "button_help"),
    // Miscellaneous
    PYX_ICON(Application_Icon, "KuT"),
    PYX_ICON(Misc_KuT_Logo, "KuT"),
    PYX_ICON(Attention, "attention"),
    PYX_ICON(ConnectionBroken, "connection_broken"),
    PYX_ICON(UnderConstruction, "construction"),
    PYX_ICON(GenericTool, "generic_tool"),
    PYX_ICON(Status_Not_OK, "status_not_ok"),
    PYX_ICON(Status_OK, "status_ok"),
    PYX_ICON(Status_NeedsAttention, "status_attention"),
    PYX_ICON(Status_Unknown, "status_unknown"),
    PYX_ICON(Network_Computer, "network_computer"),
    PYX_ICON(Network_Database, "network_database"),
    PYX_ICON(Network_Folder, "network_folder"),
    PYX_ICON(Report, "report"),
    PYX_ICON(Directions, "directions"),
    PYX_ICON(Sum, "sum"),
    // LEDs
    PYX_ICON(LED_Round_Blue, "round_led_blue"),
    PYX_ICON(LED_Round_Cyan, "round_led_cyan"),
    PYX_ICON(LED_Round_Green, "round_led_green"),
    PYX_ICON(LED_Round_Magenta, "round_led_magenta"),
    PYX_ICON(LED_Round_Orange, "round_led_orange"),
    PYX_ICON(LED_Round_Red, "round_led_red"),
    PYX_ICON(LED_Round_Violet, "round_led_violet"),
    PYX_ICON(LED_Round_Yellow, "round_led_yellow"),
    // Bullets
    PYX_ICON(Bullet_Black, "bullet_black"),
    // Docks and widgets
    PYX_ICON(ShowHideAllDocks, "showHide_allDocks"),
    PYX_ICON(Widget_LogMessages, "log_messages"),
    // Player
    PYX_ICON(Player_AddBookmark, "Player/addBookmark"),
    PYX_ICON(Player_LoopingMode, "Player/loopingMode"),
    PYX_ICON(Player_Pause, "Player/pause"),
    PYX_ICON(Player_Recording, "Player/recording"),
    PYX_ICON(Player_Speed_Decrease, "Player/speed_decrease"),
    PYX_ICON(Player_Speed_Default, "Player/speed_default"),
    PYX_ICON(Player_Speed_Fastest, "Player/speed_fastest"),
    PYX_ICON(Player_Speed_Increase, "Player/speed_increase"),
    PYX_ICON(Player_Start, "Player/start"),
    PYX_ICON(Player_StartStop_Combined, "Player/startStop"),
    PYX_ICON(Player_Stop, "Player/stop"),
    PYX_ICON(Player_StopAllRecordings, "Player/stopAllRecordings"),
    PYX_ICON(Player_Sound, "Player/sound"),
    PYX_ICON(Player_Sound_No_Traffic, "Player/sound_no_traffic"),
    PYX_ICON(Player_Sound_Traffic, "Player/sound_traffic"),
    PYX_ICON(Player_Sound_Not_Available, "Player/sound_not_available"),
    PYX_ICON(Player_Sound_Not_Available_Traffic, "Player/sound_not_available_traffic"),
    PYX_ICON(Player_Sound_Not_Available_No_Traffic, "Player/sound_not_available_no_traffic"),
    PYX_ICON(Player_Sound_Volume_Decrease, "Player/sound_volume_decrease"),
    PYX_ICON(Player_Sound_Volume_Increase, "Player/sound_volume_increase"),
    PYX_ICON(Player_Sound_Volume_Mute, "Player/sound_volume_mute"),
    PYX_ICON(Player_Document, "Player/document_project"),
    PYX_ICON(Player_Document_Part, "Player/task"),
    // Browser
    PYX_ICON(Browser_Home, "Browser/home"),
    PYX_ICON(Browser_Home_New, "Browser/home_new"),
    // Input sources
    PYX_ICON(InputSource_Tuner, "InputSource/tuner"),
    PYX_ICON(InputSource_Tuner_Snapshot, "InputSource/tuner_snapshot"),
    PYX_ICON(InputSource_Soundcard, "InputSource/soundcard"),
    // Demodulators and decoders
    PYX_ICON(DemDec_UniversalDemodulator, "DemDec/demod_universal"),
    // Pins
    PYX_ICON(Pin_Unpinned_Blue, "pin_blue_unpinned"),
    PYX_ICON(Pin_Pinned_Blue, "pin_blue_pinned"),
    PYX_ICON(Pin_OnOff_Blue, "pin_blue_mixed"),
    // Storage
    PYX_ICON(Storage_Local, "storage_local"),
    PYX_ICON(Storage_Local_Connected, "storage_local_connected"),
    PYX_ICON(Storage_Network, "storage_network"),
    PYX_ICON(Storage_None, "storage_none"),
    PYX_ICON(Storage_Select, "storage_select"),
    // Images
    PYX_ICON(Image_Zoom_In, "Image/zoom_in"),
    PYX_ICON(Image_Zoom_Out, "Image/zoom_out"),
    PYX_ICON(Image_Zoom_Reset, "Image/zoom_reset"),
    PYX_ICON(Image_Zoom_Auto, "Image/zoom_auto"),
    PYX_ICON(Image_Zoom_Auto_Y, "Image/zoom_auto_y"),
    PYX_ICON(Image_Zoom_Tool, "Image/zoom_tool"),
    PYX_ICON(Image_Zoom_Link, "Image/zoom_link"),
    PYX_ICON(Image_Size_Fit_Height, "Image/image_size_fit_height"),
    PYX_ICON(Image_Size_Fit_Width, "Image/image_size_fit_width"),
    PYX_ICON(Image_Size_Fit_View, "Image/image_size_fit_view"),
    PYX_ICON(Image_Size_Fit_Keep_Aspect, "Image/image_size_fit_keep_aspect"),
    PYX_ICON(Image_Size_Fit_Keep_Aspect_Expanding, "Image/image_size_fit_keep_aspect_expanding"),
    PYX_ICON(Album, "Image/album"),
    PYX_ICON(Image, "Image/image"),
    PYX_ICON(Image_Delete, "Image/image_delete"),
    PYX_ICON(Image_Error, "Image/image_error"),
    PYX_ICON(Image_Export, "Image/image_export"),
    PYX_ICON(Image_Save, "Image/image_save"),
    PYX_ICON(Image_Print, "Image/image_print"),
    // Displays
    PYX_ICON(Display_Apply_Smoothing, "Display/apply_smoothing"),
    PYX_ICON(Display_Auto_XScale, "Display/auto_xscale"),
    PYX_ICON(Display_Auto_YScale, "Display/auto_yscale"),
    PYX_ICON(Display_Auto_YScale_Colors, "Display/auto_yscale_colors"),
    PYX_ICON(Display_Show_Absolute_Frequency, "Display/show_absolute_frequency"),
    PYX_ICON(Display_Show_Absolute_Time, "Display/show_absolute_time"),
    PYX_ICON(Display_Show_Grid, "Display/show_grid"),
    PYX_ICON(Display_Show_LineSpectrum, "Display/show_linespectrum"),
    PYX_ICON(Display_Tool_Bandwidth_Level, "Display/tool_bandwidth_level"),
    PYX_ICON(Display_Tool_Level, "Display/tool_level"),
    PYX_ICON(Display_Tool_Multi_Measurement, "Display/tool_multi_measurement"),
    PYX_ICON(Display_No_Tool, "Display/no_tool"),
    // Overlays
    PYX_ICON(Overlay_Eye, "Overlays/overlay_eye"),
    PYX_ICON(Overlay_Eye_No, "Overlays/overlay_eye_no"),
    PYX_ICON_WITHOUT_FILE(Overlay_Eye_Interleaved),
    PYX_ICON(Overlay_Saved, "Overlays/ov_save"),
    // Overlays that keep their size
    PYX_ICON(Overlay_Non_Scaled_Recording, "Overlays/non_scaled/action_record"),
};

} // namespace

StandardIconTable standardIconTable()
{
    return {std::begin(Table), std::end(Table)};
}

} // namespace PYXRuntime
