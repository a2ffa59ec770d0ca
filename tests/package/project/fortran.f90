! SPDX-License-Identifier: MIT
! An add-on in Fortran, which declares what it calls.
module addon
    use, intrinsic :: iso_c_binding
    implicit none
    integer(c_int), save :: dialog = -2
    interface
        subroutine ZelUtilAddOnRegister(name, summary, launch) bind(C, name="ZelUtilAddOnRegister")
            import
            character(kind=c_char), intent(in) :: name(*), summary(*)
            type(c_funptr), value :: launch
        end subroutine
        function ZelGUIDialogCreateModal(parent, width, height, title, onInit, onOk, onApply, onCancel, onHelp) &
                bind(C, name="ZelGUIDialogCreateModal")
            import
            integer(c_int), value :: parent, width, height
            character(kind=c_char), intent(in) :: title(*)
            type(c_funptr), value :: onInit, onOk, onApply, onCancel, onHelp
            integer(c_int) :: ZelGUIDialogCreateModal
        end function
        subroutine ZelGUIDialogLaunch(dialog) bind(C, name="ZelGUIDialogLaunch")
            import
            integer(c_int), value :: dialog
        end subroutine
        subroutine ZelGUIDialogDrop(dialog) bind(C, name="ZelGUIDialogDrop")
            import
            integer(c_int), value :: dialog
        end subroutine
    end interface
contains
    subroutine drop() bind(C)
        call ZelGUIDialogDrop(dialog)
    end subroutine

    subroutine launch() bind(C)
        dialog = ZelGUIDialogCreateModal(-1, 2000, 500, "Fortran" // c_null_char, c_null_funptr, c_funloc(drop), &
            c_null_funptr, c_funloc(drop), c_null_funptr)
        call ZelGUIDialogLaunch(dialog)
    end subroutine

    subroutine ZelAddOnInit() bind(C, name="ZelAddOnInit")
        call ZelUtilAddOnRegister("Fortran" // c_null_char, "A dialog" // c_null_char, c_funloc(launch))
    end subroutine
end module
