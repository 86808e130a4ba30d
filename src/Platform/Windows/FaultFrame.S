# unsigned long VekCallInFaultFrame(void (*function)(void*), void* argument)
#
# Calls function(argument) and answers 0; if a structured exception comes out of the call, unwinds to here and answers
# its code. The same as __try and __except with a filter that accepts everything, which GCC does not have.
#
# Frame: 32 bytes of home space for the callee, then the code (4 bytes) and padding up to 16-byte alignment.

        .text
        .globl  VekCallInFaultFrame
        .def    VekCallInFaultFrame; .scl 2; .type 32; .endef
        .p2align 4
        .seh_proc VekCallInFaultFrame
VekCallInFaultFrame:
        subq    $40, %rsp
        .seh_stackalloc 40
        .seh_endprologue
        movq    %rcx, %rax
        movq    %rdx, %rcx
.Lbegin:
        call    *%rax
        nop                             # the return address must lie inside the guarded range
.Lend:
        xorl    %eax, %eax
        addq    $40, %rsp
        ret
.Lcaught:
        movl    32(%rsp), %eax
        addq    $40, %rsp
        ret

        .seh_handler __C_specific_handler, @except
        .seh_handlerdata
        .long   1                       # one guarded range: begin, end, filter, continuation
        .rva    .Lbegin, .Lend, .Lfilter, .Lcaught
        .text
        .seh_endproc

# Filter, called before the unwinding: rcx = EXCEPTION_POINTERS*, rdx = the frame above. Only here is the code known.
        .p2align 4
.Lfilter:
        movq    (%rcx), %rax            # ExceptionRecord
        movl    (%rax), %eax            # ExceptionCode
        movl    %eax, 32(%rdx)
        movl    $1, %eax                # EXCEPTION_EXECUTE_HANDLER
        ret
